// What a Qt Widgets program costs that shows nothing.

#include "benchmarks/app/first_frame.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1320, 880);
    const kalvo::benchmarks::EndAfterFirstFrame end(window);
    window.show();
    return QApplication::exec();
}
