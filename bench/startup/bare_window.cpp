// The least that a Qt program shows: a window with one label, of the size that the main window has
// at the usual font, since the pixels of a window count as memory of its process.
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(new QLabel(QStringLiteral("A window")));
    window.resize(656, 606);
    window.show();
    return QApplication::exec();
}
