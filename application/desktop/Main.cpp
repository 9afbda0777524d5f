#include "Core/Assert/Assert.h"
#include "MainWindow.h"
#include "Ui/Qt/QtBackend.h"

#include <cstdio>
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <set>
#include <string>

namespace {

using qev::application::FileQuestions;
using qev::application::MainWindow;

enum ExitCode : int
{
    success = 0,
    notOpened = 1,
    noSuchObject = 2,
    notWritten = 3,
};

int fail(ExitCode code, QString const& text)
{
    std::fputs(qPrintable("qev-inspector: " + text + '\n'), stderr);
    return code;
}

/// A picture has nobody to ask: whatever would be asked is told on the error stream instead.
FileQuestions makeSilentQuestions()
{
    FileQuestions questions;
    questions.leaveChanges = [](QString const&) { return FileQuestions::Leave::Stay; };
    questions.overwriteChanged = [](QString const&) { return false; };
    questions.tellProblem = [](QString const& text, QString const& details) {
        std::fputs(qPrintable("qev-inspector: " + text + ' ' + details + '\n'), stderr);
    };
    questions.pathToOpen = [](QString const&) { return QString(); };
    questions.pathToSave = [](QString const&) { return QString(); };
    return questions;
}

/// Shows each report of a programming error once; many come again with every object that is shown.
void showReport(qev::assert::AssertInfo const& info)
{
    static std::set<std::string> shown;
    if (shown.insert(info.text + info.function).second)
        std::fprintf(stderr, "Report: %s (%s)\n", info.text.c_str(), info.function.c_str());
}

int takePicture(MainWindow& window, QString const& file, QString const& object, QString const& picture)
{
    window.setQuestions(makeSilentQuestions());
    if (!file.isEmpty() && !window.getFileActions().open(file))
        return notOpened;
    if (!object.isEmpty() && !window.selectObject(object))
        return fail(noSuchObject, "there is no object with the GlobalId " + object);
    window.show();
    QCoreApplication::processEvents();
    if (!window.grab().save(picture))
        return fail(notWritten, "cannot write " + picture);
    return success;
}

} // namespace

int main(int argc, char** argv)
{
    qev::assert::Assert::setHandler(showReport);
    QApplication const application(argc, argv);
    QApplication::setOrganizationName("QevFoundationClassesUi");
    QApplication::setApplicationName("qev-inspector");
    QApplication::setApplicationDisplayName("IFC Inspector");

    QCommandLineParser parser;
    parser.setApplicationDescription("Shows and edits the properties of a building model (IFC).");
    parser.addHelpOption();
    parser.addPositionalArgument("FILE", "an IFC file to open", "[FILE]");
    QCommandLineOption const object("object", "Select the object with this GlobalId.", "GUID");
    QCommandLineOption const screenshot("screenshot", "Write a picture of the window to FILE.png and quit.",
                                        "FILE.png");
    QCommandLineOption const reports("reports", "Print reports of programming errors on the error stream.");
    parser.addOptions({object, screenshot, reports});
    parser.process(application);
    // Properties of kinds that have no row yet are reported as not implemented; that is of use to developers
    // only.
    qev::assert::Assert::setEnabled(parser.isSet(reports));

    auto const backend = qev::ui::QtBackend::install();
    MainWindow window(backend);
    auto const file = parser.positionalArguments().value(0);
    if (parser.isSet(screenshot))
        return takePicture(window, file, parser.value(object), parser.value(screenshot));

    window.restoreWindow();
    window.show();
    if (!file.isEmpty() && window.getFileActions().open(file) && parser.isSet(object) &&
        !window.selectObject(parser.value(object)))
        std::fputs("qev-inspector: there is no object with that GlobalId\n", stderr);
    return QApplication::exec();
}
