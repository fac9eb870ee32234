// The application up to the first frame of its full window.

#include "app/run_application.h"
#include "benchmarks/app/first_frame.h"
#include "widgets/next_frame.h"

int main(int argc, char** argv) {
    return kalvo::app::runApplication(argc, argv, [](QMainWindow& window) {
        kalvo::widgets::afterNextFrame(window, kalvo::benchmarks::endAtFirstFrame);
    });
}
