#include "SettingsDialog.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "DialogButtons.h"
#include "LanguageName.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QFormLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace qev::application {

namespace {

using ui::fromQString;
using ui::toQString;
using System = unit::UnitPreferences::System;

constexpr int mixedEntry = 2;

/// Mnemonics are for menus.
QString withoutMnemonic(QString text) { return text.remove('&'); }

QLabel* createHint(QString const& text)
{
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

void choose(QComboBox& box, QVariant const& data)
{
    auto const entry = box.findData(data);
    box.setCurrentIndex(entry < 0 ? 0 : entry);
}

} // namespace

SettingsDialog::SettingsDialog(ProgramSettings const& settings, locale::Locale const& ofSystem,
                               QWidget* parent)
    : QDialog(parent)
    , m_ofSystem(ofSystem)
    , m_system(new QComboBox)
    , m_decimalSign(new QComboBox)
    , m_units(new UnitTable)
    , m_language(new QComboBox)
    , m_theme(new QComboBox)
    , m_definitions(new FolderBox)
    , m_classifications(new FolderBox)
    , m_texts(new FolderBox)
{
    setWindowTitle(getText("Settings_Title"));
    auto* const pages = new QTabWidget;
    pages->addTab(createUnitsPage(), getText("Settings_UnitsTab"));
    pages->addTab(createProgramPage(), getText("Settings_ProgramTab"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(pages);
    layout->addWidget(makeButtons(*this));
    fill(settings);
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 36);
}

SettingsDialog::~SettingsDialog() = default;

ProgramSettings SettingsDialog::getSettings() const
{
    ProgramSettings settings;
    settings.display.units = m_units->getPreferences();
    settings.display.units.setNumberFormat({});
    if (auto const sign = m_decimalSign->currentData().toString(); !sign.isEmpty())
        settings.display.decimalSign = sign.at(0).toLatin1();
    settings.display.language = fromQString(m_language->currentData().toString());
    settings.display.texts = m_texts->getFolder();
    settings.theme = static_cast<Theme>(m_theme->currentData().toInt());
    settings.definitions = m_definitions->getFolder();
    settings.classifications = m_classifications->getFolder();
    return settings;
}

QWidget* SettingsDialog::createUnitsPage()
{
    m_system->addItem(withoutMnemonic(getText("Settings_Metric")), static_cast<int>(System::Metric));
    m_system->addItem(withoutMnemonic(getText("Settings_Imperial")), static_cast<int>(System::Imperial));
    m_system->addItem(getText("Settings_Mixed"));
    m_decimalSign->addItem(getText("Settings_SignOfLanguage"), QString());
    m_decimalSign->addItem(getText("Settings_Point"), QStringLiteral("."));
    m_decimalSign->addItem(getText("Settings_Comma"), QStringLiteral(","));
    connect(m_system, &QComboBox::activated, this, [this] { takeSystem(); });
    connect(m_decimalSign, &QComboBox::currentIndexChanged, this, [this] { showDecimalSign(); });
    m_units->onChanged.iHandlerAdd([this] { showSystem(); });

    auto* const page = new QWidget;
    auto* const form = new QFormLayout;
    form->addRow(getText("Settings_System"), m_system);
    form->addRow(getText("Settings_DecimalSign"), m_decimalSign);
    auto* const layout = new QVBoxLayout(page);
    layout->addLayout(form);
    layout->addWidget(m_units);
    return page;
}

QWidget* SettingsDialog::createProgramPage()
{
    fillLanguages();
    m_theme->addItem(getText("Settings_ThemeOfSystem"), static_cast<int>(Theme::OfSystem));
    m_theme->addItem(getText("Settings_ThemeLight"), static_cast<int>(Theme::Light));
    m_theme->addItem(getText("Settings_ThemeDark"), static_cast<int>(Theme::Dark));
    connect(m_language, &QComboBox::currentIndexChanged, this, [this] { showDecimalSign(); });

    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->addRow(getText("Settings_LanguageLabel"), m_language);
    form->addRow(getText("Settings_Theme"), m_theme);
    form->addRow(getText("Settings_Definitions"), m_definitions);
    form->addRow(createHint(getText("Settings_DefinitionsHint")));
    form->addRow(getText("Settings_Classifications"), m_classifications);
    form->addRow(createHint(getText("Settings_ClassificationsHint")));
    form->addRow(getText("Settings_Texts"), m_texts);
    form->addRow(createHint(getText("Settings_TextsHint")));
    return page;
}

void SettingsDialog::fillLanguages()
{
    m_language->addItem(getText("Settings_LanguageOfSystem"), QString());
    for (auto const& language : getLanguages())
        m_language->addItem(getLanguageName(language), toQString(language.code()));
}

void SettingsDialog::fill(ProgramSettings const& settings)
{
    auto const& display = settings.display;
    m_units->setPreferences(display.units);
    choose(*m_decimalSign, display.decimalSign ? QString(QChar(*display.decimalSign)) : QString());
    choose(*m_language, toQString(display.language));
    choose(*m_theme, static_cast<int>(settings.theme));
    m_definitions->setFolder(settings.definitions);
    m_classifications->setFolder(settings.classifications);
    m_texts->setFolder(display.texts);
    showSystem();
    showDecimalSign();
}

void SettingsDialog::takeSystem()
{
    if (auto const system = m_system->currentData(); system.isValid())
        m_units->setPreferences(unit::UnitPreferences(static_cast<System>(system.toInt())));
    showSystem();
}

void SettingsDialog::showSystem()
{
    auto const system = m_units->getPreferences().system();
    m_system->setCurrentIndex(system ? m_system->findData(static_cast<int>(*system)) : mixedEntry);
}

void SettingsDialog::showDecimalSign()
{
    auto const display = getSettings().display;
    m_units->setDecimalSign(display.decimalSign.value_or(display.getLocale(m_ofSystem).decimalSign()));
}

} // namespace qev::application
