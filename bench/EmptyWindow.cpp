// The least a Qt program can do: an empty main window. Peer of the program's start.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    constexpr int kWidth = 1128;
    constexpr int kHeight = 660;
    window.resize(kWidth, kHeight);
    window.show();
    return QApplication::exec();
}
