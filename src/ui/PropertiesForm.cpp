#include "ui/PropertiesForm.h"

namespace ostrel {

PropertiesForm::PropertiesForm() : Form("frmOstrelProperties", "Database Properties") {
    width = 7200;
    height = 5400;
    grdData.rows = {{"Property", "Value"}};
    lblTest.visible = false;
}

} // namespace ostrel
