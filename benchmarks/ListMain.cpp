#include "Core/Assert/Assert.h"
#include "ListFigures.h"

#include <charconv>
#include <iostream>
#include <QApplication>
#include <QByteArray>
#include <string_view>

int main(int argc, char** argv)
{
    unsigned int runs = 9;
    if (argc == 3 && argv[1] == std::string_view("--runs")) {
        std::string_view const number = argv[2];
        auto const [end, error] = std::from_chars(number.data(), number.data() + number.size(), runs);
        if (error != std::errc() || end != number.data() + number.size() || runs == 0)
            argc = 0;
    } else if (argc != 1) {
        argc = 0;
    }
    if (argc == 0) {
        std::cerr << "qev-list-benchmarks [--runs N]\n"
                     "Measures the list on the screen against a bare table of Qt.\n";
        return 2;
    }
    qev::assert::Assert::setEnabled(false);
    // The same on every machine, with a display or without.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(argc, argv);
    auto const table = qev::benchmarks::ListFigures::measure(runs);
    table.print(std::cout);
    return table.hasFailures() ? 1 : 0;
}
