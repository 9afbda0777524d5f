#include "ScreenMain.h"

#include "Core/Assert/Assert.h"

#include <charconv>
#include <iostream>
#include <optional>
#include <QApplication>
#include <QByteArray>

namespace qev::benchmarks {

namespace {

/// The number behind "--runs", or \p otherwise; nothing for arguments that mean nothing.
std::optional<unsigned int> readRuns(int argc, char** argv, unsigned int otherwise)
{
    if (argc == 1)
        return otherwise;
    if (argc != 3 || argv[1] != std::string_view("--runs"))
        return std::nullopt;
    std::string_view const number = argv[2];
    unsigned int runs = 0;
    auto const [end, error] = std::from_chars(number.data(), number.data() + number.size(), runs);
    if (error != std::errc() || end != number.data() + number.size() || runs == 0)
        return std::nullopt;
    return runs;
}

} // namespace

int ScreenMain::run(int argc, char** argv) const
{
    auto const runs = readRuns(argc, argv, defaultRuns);
    if (!runs) {
        std::cerr << program << " [--runs N]\n" << description << '\n';
        return 2;
    }
    assert::Assert::setEnabled(false);
    // The same on every machine, with a display or without.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(argc, argv);
    auto const table = measure(*runs);
    table.print(std::cout);
    return table.hasFailures() ? 1 : 0;
}

} // namespace qev::benchmarks
