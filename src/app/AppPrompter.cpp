#include "app/AppPrompter.h"

#include "dialogs/frmHelp.h"
#include "frame/ProgramFolder.h"

namespace orvane {

void AppPrompter::ShowHelp(int context) {
    frmHelp::ShowTopic(gAppPath + "help/", context);
}

} // namespace orvane
