#include "Ui/Qt/PropertyGrid/QtPropertyGridClipboard.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Qt/QtText.h"

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;

QString getCheckText(CheckState state)
{
    switch (state) {
    case CheckState::Checked:
        return QStringLiteral("true");
    case CheckState::Unchecked:
        return QStringLiteral("false");
    case CheckState::Indeterminate:
        return {};
    }
    return {};
}

QString getValueOnly(PropertyGridRow const& row)
{
    auto text = toQString(PropertyGridEditing::getDisplayedText(row));
    return text.isEmpty() && PropertyGridEditing::hasCheckBox(row) ? getCheckText(row.getCheckState()) : text;
}

/// Spreadsheets read a quoted field as one, whatever stands in it.
QString quoteField(QString const& field)
{
    if (!field.contains('\t') && !field.contains('\n') && !field.contains('"'))
        return field;
    return '"' + QString(field).replace('"', QLatin1String("\"\"")) + '"';
}

} // namespace

std::unique_ptr<QMimeData> QtPropertyGridClipboard::make(std::vector<PropertyGridRow const*> const& rows)
{
    auto data = std::make_unique<QMimeData>();
    if (rows.size() == 1) {
        data->setText(getValueText(*rows.front()));
        return data;
    }
    QString text;
    QString html;
    for (auto const* const row : rows) {
        auto const name = toQString(row->getName());
        auto const value = getValueOnly(*row);
        text += quoteField(name) + '\t' + quoteField(value) + '\n';
        html += "<tr><td>" + name.toHtmlEscaped() + "</td><td>" + value.toHtmlEscaped() + "</td></tr>";
    }
    data->setText(text);
    data->setHtml("<table>" + html + "</table>");
    return data;
}

QString QtPropertyGridClipboard::getValueText(PropertyGridRow const& row)
{
    return row.getState().kind == Kind::Group ? toQString(row.getName()) : getValueOnly(row);
}

} // namespace qev::ui
