// bare_window WIDTH HEIGHT: the least that a Qt program shows, a window with one label. Its size is
// that of the window that it is compared with, since pixels take time and memory.
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    if (argumentCount != 3) {
        return EXIT_FAILURE;
    }
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(new QLabel(QStringLiteral("A window")));
    window.setFixedSize(std::atoi(arguments[1]), std::atoi(arguments[2]));
    window.show();
    return QApplication::exec();
}
