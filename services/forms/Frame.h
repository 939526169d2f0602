#pragma once

#include <QMargins>

class QWidget;

namespace vellarno::forms {

/// What the desktop will add around a window that has not been on screen yet, in the window's
/// pixels. Nothing where the desktop does not tell.
QMargins FrameMargins(QWidget& Window);

}
