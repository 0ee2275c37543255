#pragma once

class QWebEngineProfile;

namespace ostrel::desktop {

/// Pages can reach the network by sockets, which are not requests and so never pass `PaneTrust`. The
/// component needs none, and `Offline` must hold for them too. What the engine is told for its whole
/// life keeps them off datagrams; before the first profile of the process is made.
void RefuseSockets();

/// Removes the interface of peer connections, which could still open a stream, from the profile's
/// pages.
void RefuseSockets(QWebEngineProfile& profile);

} // namespace ostrel::desktop
