// The application up to the first frame of its full window.

#include "app/qt/run_application.h"
#include "benchmarks/app/first_frame.h"
#include "ui/after_paint.h"

int main(int argc, char** argv) {
    return kalvo::app::runApplication(argc, argv, [](QMainWindow& window) {
        kalvo::ui::afterNextPaint(window, kalvo::benchmarks::endAtFirstFrame);
    });
}
