#include "ui/compositing.h"

#include <QGuiApplication>

#ifdef KALVO_XCB
#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>
#endif

namespace kalvo::ui {

#ifdef KALVO_XCB
namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

/// Whether the compositing manager's selection has an owner (Extended Window Manager Hints,
/// "_NET_WM_CM_Sn"). Qt draws on the first screen of an X server, which is the only one of all
/// today's.
bool hasCompositingManager(xcb_connection_t* connection) {
    constexpr std::string_view kSelection = "_NET_WM_CM_S0";
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(kSelection.size()),
                        kSelection.data()),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE) return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

}  // namespace
#endif

bool isDesktopComposited() {
#ifdef KALVO_XCB
    // Other platforms have the interface, too, but no connection behind it.
    if (QGuiApplication::platformName() == u"xcb") {
        const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        return hasCompositingManager(x11->connection());
    }
#endif
    // The other desktops always do.
    return true;
}

}  // namespace kalvo::ui
