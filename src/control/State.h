#pragma once

#include "control/ControlProperties.h"
#include "control/ToolbarProperties.h"
#include "editors/EditProperties.h"
#include "help/IndexStore.h"
#include "help/SearchProperties.h"
#include "html/HelpProperties.h"
#include "html/PageFonts.h"
#include "html/PageProperties.h"
#include "html/SeparatePage.h"
#include "net/PullProperties.h"
#include "services/ServiceProperties.h"
#include "tablepages/HeaderLinks.h"
#include "tablepages/TableOptions.h"
#include "ui/DialogProperties.h"

namespace ostrel {

/// All state of one control that outlives a call, a plain struct for each subsystem. Empty by default; the
/// defaults of the properties arrive with `InitProperties`, `ReadProperties` or `PageReset`.
struct State {
    ControlProperties control;
    ToolbarProperties toolbar;
    ServiceProperties service;
    DialogProperties dialog;
    HelpProperties draft;        ///< the page under construction
    PageProperties pageSettings; ///< of the pages to come; `PageInitialise` copies them into `draft`
    PageFonts fonts;
    TableOptions table;
    HeaderLinks headerLinks;
    SeparatePage separate;
    SearchProperties search;
    help::IndexStore index;
    PullProperties pull;
    EditProperties edit;

    /// What the last extraction of a tag left over.
    Text extractRemain;
    /// The sentence of the last failed `ReadFile`.
    Text lastFileError;
};

} // namespace ostrel
