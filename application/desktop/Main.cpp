#include "Core/Assert/Assert.h"
#include "ExitCode.h"
#include "FilePath.h"
#include "MainWindow.h"
#include "Ui/Qt/QtBackend.h"

#include <cstdio>
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <set>
#include <string>

namespace {

using qev::application::ExitCode;
using qev::application::FileQuestions;
using qev::application::MainWindow;
using qev::application::ProgramSettings;
using qev::application::Theme;
using qev::unit::UnitPreferences;

void tell(QString const& text) { std::fputs(qPrintable("qev-inspector: " + text + '\n'), stderr); }

ExitCode fail(ExitCode code, QString const& text)
{
    tell(text);
    return code;
}

QString getNoSuchObject(QString const& globalId)
{
    return "there is no object with the GlobalId " + globalId;
}

/// A picture has nobody to ask: whatever would be asked is told on the error stream instead.
FileQuestions makeSilentQuestions()
{
    FileQuestions questions;
    questions.leaveChanges = [](QString const&) { return FileQuestions::Leave::Stay; };
    questions.overwriteChanged = [](QString const&) { return false; };
    questions.tellProblem = [](QString const& text, QString const& details) { tell(text + ' ' + details); };
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

struct Options
{
    QCommandLineOption object{"object", "Select the object with this GlobalId.", "GUID"};
    QCommandLineOption list{"list", "Show the list of objects."};
    QCommandLineOption editor{"editor", "Show the object editor."};
    QCommandLineOption screenshot{"screenshot", "Write a picture of the window to FILE.png and quit.",
                                  "FILE.png"};
    QCommandLineOption language{"language", "Use this language (en, de, fr) for this once.", "CODE"};
    QCommandLineOption units{"units", "Show values in these units for this once: metric or imperial.",
                             "SYSTEM"};
    QCommandLineOption theme{"theme", "Look like this for this once: light or dark.", "THEME"};
    QCommandLineOption classifications{
        "classifications", "Offer the systems of classification in this file or folder for this once.",
        "PATH"};
    QCommandLineOption reports{"reports", "Print reports of programming errors on the error stream."};
};

/// Puts what the command line says over the settings. \returns false when it says what nobody understands.
bool takeOptions(QCommandLineParser const& parser, Options const& options, ProgramSettings& settings)
{
    if (parser.isSet(options.language)) {
        settings.display.language = parser.value(options.language).toStdString();
        if (!qev::locale::Locale::fromCode(settings.display.language))
            return false;
    }
    if (parser.isSet(options.units)) {
        auto const system = UnitPreferences::systemFromName(parser.value(options.units).toStdString());
        if (!system)
            return false;
        settings.display.units = UnitPreferences(*system);
    }
    if (parser.isSet(options.theme)) {
        auto const name = parser.value(options.theme);
        if (name != "light" && name != "dark")
            return false;
        settings.theme = name == "dark" ? Theme::Dark : Theme::Light;
    }
    if (parser.isSet(options.classifications))
        settings.classifications = qev::application::toPath(parser.value(options.classifications));
    return true;
}

/// A picture is the same whoever takes it, whatever his settings are.
ProgramSettings getSettingsForPicture()
{
    ProgramSettings settings;
    settings.display.language = "en";
    return settings;
}

ExitCode takePicture(MainWindow& window, QCommandLineParser const& parser, Options const& options)
{
    auto const file = parser.positionalArguments().value(0);
    auto const object = parser.value(options.object);
    auto const picture = parser.value(options.screenshot);
    window.setQuestions(makeSilentQuestions());
    if (!file.isEmpty() && !window.getFileActions().open(file))
        return ExitCode::UnreadableFile;
    if (!object.isEmpty() && !window.selectObject(object))
        return fail(ExitCode::NothingFound, getNoSuchObject(object));
    window.showList(parser.isSet(options.list));
    if (parser.isSet(options.editor))
        window.showEditor();
    window.show();
    QCoreApplication::processEvents();
    if (!window.grab().save(picture))
        return fail(ExitCode::NotSaved, "cannot write " + picture);
    return ExitCode::Success;
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
    auto const help = parser.addHelpOption();
    parser.addPositionalArgument("FILE", "an IFC file to open", "[FILE]");
    Options const options;
    parser.addOptions({options.object, options.list, options.editor, options.screenshot, options.language,
                       options.units, options.theme, options.classifications, options.reports});
    if (!parser.parse(QApplication::arguments()))
        return static_cast<int>(fail(ExitCode::BadUsage, parser.errorText()));
    if (parser.isSet(help))
        parser.showHelp();
    // Properties of kinds that have no row yet are reported as not implemented; that is of use to developers
    // only.
    qev::assert::Assert::setEnabled(parser.isSet(options.reports));

    auto const backend = qev::ui::QtBackend::install();
    MainWindow window(backend);
    auto const file = parser.positionalArguments().value(0);
    auto const isPicture = parser.isSet(options.screenshot);
    auto settings = isPicture ? getSettingsForPicture() : ProgramSettings::restore();
    if (!takeOptions(parser, options, settings))
        return static_cast<int>(
            fail(ExitCode::BadUsage, "an option has a value that is not known; see --help"));
    window.getSettingsActions().apply(settings);
    if (isPicture)
        return static_cast<int>(takePicture(window, parser, options));

    window.restoreWindow();
    if (parser.isSet(options.list))
        window.showList(true);
    if (parser.isSet(options.editor))
        window.showEditor();
    window.show();
    if (!file.isEmpty() && window.getFileActions().open(file) && parser.isSet(options.object) &&
        !window.selectObject(parser.value(options.object)))
        tell(getNoSuchObject(parser.value(options.object)));
    return QApplication::exec();
}
