#include "ui/PropertiesForm.h"

namespace ostrel {

PropertiesForm::PropertiesForm(Text formCaption) : Form("frmOstrelProperties", std::move(formCaption)) {
    width = 7200;
    height = 5400;
    grdData.rows = {{"Property", "Value"}};
    lblTest.visible = false;
}

} // namespace ostrel
