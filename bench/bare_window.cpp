// The least that a program with a window of Qt Widgets does: an empty window in the editor's style
// and size, with the text of the argument if there is one. Its start is what the editor's is
// measured beside.
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QStyleFactory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget window;
    if (argc > 1) new QLabel(QString::fromLocal8Bit(argv[1]), &window);
    window.resize(QSize(626, 410).boundedTo(window.screen()->availableSize()));
    window.show();
    return QApplication::exec();
}
