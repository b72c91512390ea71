#pragma once

#include <oleidl.h>

namespace ferrowind::automation {

/// What containers know of the control before they make it: it is activated in place as soon as it is on
/// show, knows its site first, and is invisible at run time.
inline constexpr DWORD kMiscellaneousStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                              OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                              OLEMISC_INVISIBLEATRUNTIME | OLEMISC_SETCLIENTSITEFIRST;

}  // namespace ferrowind::automation
