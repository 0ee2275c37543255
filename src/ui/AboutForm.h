#pragma once

#include "ui/Form.h"

namespace ostrel {

/// What a program says about itself.
struct AboutProgram {
    Text name;
    Long major = 0, minor = 0, revision = 0;
    Text created;
    Text description;
    Text disclaimer;
};

class AboutForm final : public Form {
public:
    explicit AboutForm(const AboutProgram& program = {});

    Label lblProgram{*this, "lblProgram"};
    Label lblVersion{*this, "lblVersion"};
    Label lblCreated{*this, "lblCreated"};
    Label lblDescription{*this, "lblDescription"};
    Label lblDisclaimer{*this, "lblDisclaimer"};
    Button cmdOK{*this, "cmdOK", "OK", Purpose::Accept};
};

} // namespace ostrel
