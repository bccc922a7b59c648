#pragma once

class QToolBar;

/// Lets Tab reach the buttons of a tool bar, which by themselves are for the mouse, and the one behind which is what
/// has no room.
void letKeysReach(QToolBar *toolBar);
