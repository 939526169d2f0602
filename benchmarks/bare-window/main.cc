// The least that a window of the toolkit can cost: nothing in it, as large as the main window.
//   bare_window [TEXT]    with a text, the least that a window with a text can cost
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    if (argc > 1) new QLabel(QString::fromLocal8Bit(argv[1]), &window);
    window.setFixedSize(480, 312);
    window.show();
    return QApplication::exec();
}
