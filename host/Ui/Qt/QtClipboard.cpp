#include "Ui/Qt/PropertyGrid/QtPropertyGridClipboard.h"

#include "Ui/PropertyGrid/PropertyGridText.h"
#include "Ui/Qt/QtText.h"

namespace qev::ui {

namespace {

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
        data->setText(toQString(PropertyGridText::getCopiedText(*rows.front())));
        return data;
    }
    QString text;
    QString html;
    for (auto const* const row : rows) {
        auto const name = toQString(row->getName());
        auto const value = toQString(PropertyGridText::getValueText(*row));
        text += quoteField(name) + '\t' + quoteField(value) + '\n';
        html += "<tr><td>" + name.toHtmlEscaped() + "</td><td>" + value.toHtmlEscaped() + "</td></tr>";
    }
    data->setText(text);
    data->setHtml("<table>" + html + "</table>");
    return data;
}

} // namespace qev::ui
