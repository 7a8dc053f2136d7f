// The state of the windows that are not built yet.
#pragma once

namespace sonavel {

struct Controls;

/// For as long as the windows beside the main window are not built, connects their controls to the state that the
/// layouts of these windows give them. Changes made meanwhile are rendered when the windows are connected.
void connectInitialState(Controls& controls);

} // namespace sonavel
