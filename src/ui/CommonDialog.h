#pragma once

#include "ui/Form.h"

namespace ostrel {

/// Picks a file or a colour. A window shows the system's own picker in its place and gives this form what the
/// user picked; without a window the user fills the form in.
class CommonDialog final : public Form {
public:
    enum class Picks { FileToOpen, FileToSave, Colour };

    explicit CommonDialog(Picks what = Picks::FileToOpen);

    const Picks picks;
    TextBox FileName{*this, "FileName"};
    TextBox Filter{*this, "Filter"};
    /// Of the filter's pairs, from 1.
    TextBox FilterIndex{*this, "FilterIndex"};
    TextBox DefaultExt{*this, "DefaultExt"};
    TextBox InitDir{*this, "InitDir"};
    TextBox DialogTitle{*this, "DialogTitle"};
    /// Red is in the low byte.
    TextBox Color{*this, "Color"};
    TextBox Left{*this, "Left"}, Top{*this, "Top"};
    CheckBox OnTop{*this, "OnTop", "On Top"};
    Button OK{*this, "OK", "OK", Purpose::Accept};
    Button Cancel{*this, "Cancel", "Cancel", Purpose::Cancel};

protected:
    void Load() override;
    /// Completes the file's name by directory and extension. An empty one keeps the form open.
    bool Accept() override;
};

/// Picks a directory, in the same way.
class DirectoryDialog final : public Form {
public:
    DirectoryDialog();

    TextBox Path{*this, "Path"};
    TextBox Title{*this, "Title"};
    TextBox InitDir{*this, "InitDir"};
    TextBox Flags{*this, "Flags"};
    Button OK{*this, "OK", "OK", Purpose::Accept};
    Button Cancel{*this, "Cancel", "Cancel", Purpose::Cancel};
};

} // namespace ostrel
