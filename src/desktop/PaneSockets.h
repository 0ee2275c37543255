#pragma once

class QWebEngineProfile;

namespace ostrel::desktop {

/// Pages can reach the network by sockets that are no requests, so that `PaneTrust` never hears of them. The
/// component needs none, and being offline has to hold for them too. What the engine is told for its whole
/// life keeps them off datagrams; before the first profile of the process is made.
void RefuseSockets();

/// Takes the interface of peer connections, which could still ask for a stream, away from the profile's
/// pages.
void RefuseSockets(QWebEngineProfile& profile);

} // namespace ostrel::desktop
