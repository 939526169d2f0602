#pragma once

#include <QMargins>

class QWidget;

namespace vellarno {

/// Whether windows stand on an X server.
bool OnX11();

/// Whether windows can be seen through: a compositor runs on the X server.
bool Compositing();

/// What the desktop will add around a window that has not been on screen yet, in the window's
/// pixels. Nothing where the desktop does not tell.
QMargins FrameMargins(QWidget& Window);

}
