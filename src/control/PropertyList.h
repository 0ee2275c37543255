// Every property of the component, group by group. The including file defines PROPERTY, CUSTOM and INDEXED;
// in their expansion OWNER is the struct inside State that holds the field. No include guard: it is expanded
// often.
#define OWNER control
#include "control/ControlProperties.def"
#undef OWNER
#define OWNER toolbar
#include "control/ToolbarProperties.def"
#undef OWNER
#define OWNER service
#include "services/ServiceProperties.def"
#undef OWNER
#define OWNER dialog
#include "ui/DialogProperties.def"
#undef OWNER
#define OWNER draft
#include "html/HelpProperties.def"
#undef OWNER
#define OWNER pageSettings
#include "html/PageProperties.def"
#undef OWNER
#define OWNER table
#include "tablepages/TableOptions.def"
#undef OWNER
#define OWNER search
#include "help/SearchProperties.def"
#undef OWNER
#define OWNER pull
#include "net/PullProperties.def"
#undef OWNER
#define OWNER edit
#include "editors/EditProperties.def"
#undef OWNER
