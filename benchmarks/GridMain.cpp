#include "GridFigures.h"
#include "ScreenMain.h"

int main(int argc, char** argv)
{
    using namespace qev::benchmarks;
    ScreenMain const screenMain{"qev-grid-benchmarks",
                                "Measures the property grid on the screen against a bare tree of Qt.", 15,
                                GridFigures::measure};
    return screenMain.run(argc, argv);
}
