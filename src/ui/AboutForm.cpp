#include "ui/AboutForm.h"

#include "text/NumberText.h"

namespace ostrel {

AboutForm::AboutForm(const AboutProgram& program) : Form("frmOstrelBaseAbout", "About " + program.name) {
    width = 5400;
    height = 3600;
    lblProgram.caption = program.name;
    lblVersion.caption = "Version " + FromLong(program.major) + "." + FromLong(program.minor) + "." +
                         FromLong(program.revision);
    lblCreated.caption = program.created;
    lblDescription.caption = program.description;
    lblDisclaimer.caption = program.disclaimer;
    for (Label* label : {&lblCreated, &lblDescription, &lblDisclaimer})
        label->visible = !label->caption->empty();
}

} // namespace ostrel
