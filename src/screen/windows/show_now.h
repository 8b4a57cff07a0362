#pragma once

#include <QWidget>

namespace kurbo {

// Moves a window that is not shown yet to the middle of its screen.
void placeInMiddle(QWidget* window);

// Gives a window that is not shown yet that size, or as much of it as its screen has, in the screen's middle.
void fillScreen(QWidget* window, QSize most);

// A window that is not shown yet will stay above another one that can still be worked with.
void stayAbove(QWidget* window, const QWidget* below);

// Brings a window's picture to the screen while a long step keeps the event loop from running. What people type and
// click meanwhile waits.
void paintNow(QWidget* window);

} // namespace kurbo
