// A bare window: what any program of this toolkit costs.
#include "firstpaint.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 600);
    FirstPaint watch(&window);
    window.show();
    return QApplication::exec();
}
