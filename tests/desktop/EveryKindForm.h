#pragma once

#include "ui/Form.h"

namespace ostrel::test {

/// One control of each kind; every handler writes what it saw.
class EveryKindForm final : public Form {
public:
    EveryKindForm() : Form("frmEveryKind", "Every kind") {
        inner.container = &frame;
        list.items = {"alpha", "beta", "gamma"};
        typed.items = fixed.items = {"", "10pt", "12pt"};
        lines.lines = true;
        lines.text = "one\r\ntwo";
        grid.rows = {{"Property", "Value"}, {"Name:", "<B>"}, {"Size:"}};
        patch.colour = 0x2244EE;
    }
    using Form::Close;

    Text log;
    bool refusesClose = false;
    Text keys;

    Handler Note(const Text& what) {
        return [this, what] { log += what + ";"; };
    }
    void CloseBox() override {
        log += "box;";
        if (!refusesClose) Close();
    }
    bool KeyDown(const KeyStroke& stroke) override {
        keys += Text(stroke.control ? "Ctrl+" : "") + (stroke.alt ? "Alt+" : "") +
                (stroke.shift ? "Shift+" : "") + stroke.key + ";";
        return true;
    }

    Label label{*this, "lblText", "Some <text>"};
    TextBox line{*this, "txtLine", "Line", [this] { log += "line=" + *line.text + ";"; }};
    TextBox lines{*this, "txtLines", "Lines", [this] { log += "lines=" + *lines.text + ";"; }};
    CheckBox tick{*this, "chkTick", "Tick", 0, [this] { log += Text("tick=") + (tick.value ? "1;" : "0;"); }};
    OptionButton first{*this, "optFirst", "First", 0, Note("first")};
    OptionButton second{*this, "optSecond", "Second", 0, Note("second")};
    ListBox list{*this, "lisLines", [this] { log += "list=" + std::to_string(list.index) + ";"; },
                 Note("double")};
    ComboBox typed{*this,
                   "cboTyped",
                   "Typed",
                   true,
                   [this] { log += "pick=" + *typed.text + ";"; },
                   [this] { log += "typed=" + *typed.text + ";"; }};
    ComboBox fixed{*this, "cboFixed", "Fixed", false, [this] { log += "fixed=" + *fixed.text + ";"; }};
    Button button{*this, "cmdButton(1)", "&Button", Note("button")};
    PictureBox patch{*this, "picPatch", Note("patch")};
    FrameBox frame{*this, "fraFrame", "Frame"};
    TextBox inner{*this, "txtInner", "Inner", [this] { log += "inner=" + *inner.text + ";"; }};
    GridBox grid{*this, "grdGrid"};
    Button ok{*this, "cmdOK", "OK", Purpose::Accept, [this] {
                  log += "ok;";
                  Finish();
              }};
};

} // namespace ostrel::test
