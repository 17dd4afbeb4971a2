#ifndef LMWIDGETS_TALVOSTYLEMANAGER_P_H
#define LMWIDGETS_TALVOSTYLEMANAGER_P_H

#include <lmwidgets/talvostylemanager.h>

namespace LM {
namespace Widgets {

/**
 * Returns the manager without creating it; null before its creation and, unlike
 * TalvoStyleManager::instance(), after its destruction at the end of the process.
 */
TalvoStyleManager *existingStyleManager();

} // namespace Widgets
} // namespace LM

#endif
