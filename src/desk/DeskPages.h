#pragma once

#include <QTemporaryDir>

#include "control/OstrelWebHelp.h"
#include "desk/TableFile.h"

namespace ostrel::desk {

/// The application's own pages, made with the component. They are written to a directory that is deleted with
/// this object.
class DeskPages {
public:
    /// What to do first. The component's path of the page; empty where no work file can be written.
    Text Welcome(OstrelWebHelp& web);
    /// The first rows of a table.
    Text Preview(OstrelWebHelp& web, const TableFile& file);

private:
    Text Path(const QString& name) const;

    QTemporaryDir directory_;
};

} // namespace ostrel::desk
