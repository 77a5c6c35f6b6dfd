// The end of the session: SIGTERM, SIGINT, SIGHUP, a request of the session manager, and an X
// server that ends.
#pragma once

namespace desktop {

/// Turns the end of the session into a close request to the main window, from the event loop.
/// Called after the QApplication was created.
void WatchSessionEnd();

/// Handles events; returns when the event loop ends. If the connection to the X server is lost
/// meanwhile, Qt calls exit(): the main window gets its close request then.
int RunWatchedEventLoop();

/// Whether the connection is lost, so that nothing can be shown any more.
bool IsConnectionLost();

}  // namespace desktop
