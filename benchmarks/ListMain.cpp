#include "ListFigures.h"
#include "ScreenMain.h"

int main(int argc, char** argv)
{
    using namespace qev::benchmarks;
    ScreenMain const screenMain{"qev-list-benchmarks",
                                "Measures the list on the screen against a bare table of Qt.", 9,
                                ListFigures::measure};
    return screenMain.run(argc, argv);
}
