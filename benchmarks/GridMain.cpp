#include "Core/Assert/Assert.h"
#include "GridFigures.h"

#include <charconv>
#include <iostream>
#include <QApplication>
#include <QByteArray>
#include <string_view>

int main(int argc, char** argv)
{
    unsigned int runs = 15;
    if (argc == 3 && argv[1] == std::string_view("--runs")) {
        std::string_view const number = argv[2];
        auto const [end, error] = std::from_chars(number.data(), number.data() + number.size(), runs);
        if (error != std::errc() || end != number.data() + number.size() || runs == 0)
            argc = 0;
    } else if (argc != 1) {
        argc = 0;
    }
    if (argc == 0) {
        std::cerr << "qev-grid-benchmarks [--runs N]\n"
                     "Measures the property grid on the screen against a bare tree of Qt.\n";
        return 2;
    }
    qev::assert::Assert::setEnabled(false);
    // The same on every machine, with a display or without.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(argc, argv);
    auto const table = qev::benchmarks::GridFigures::measure(runs);
    table.print(std::cout);
    return table.hasFailures() ? 1 : 0;
}
