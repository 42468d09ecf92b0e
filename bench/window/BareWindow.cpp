#include <QApplication>
#include <QLabel>

/// A window of the toolkit with nothing but a text in it, of the size of ours and under its name:
/// what its start takes, no program on this toolkit is without.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QLabel window("A text");
    window.setWindowTitle("Dervalin Ostrelum");
    window.setStyleSheet("background: white");
    window.setFixedSize(777, 553);
    window.show();
    return QApplication::exec();
}
