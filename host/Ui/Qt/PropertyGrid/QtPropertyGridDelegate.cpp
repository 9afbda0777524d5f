#include "Ui/Qt/PropertyGrid/QtPropertyGridDelegate.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridButtons.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtChoiceEditor.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QToolTip>
#include <utility>

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;

/// The editor remembers here what it opened with, to tell an untouched one.
constexpr auto openedWithProperty = "openedWith";

QPalette::ColorGroup getColourGroup(QStyleOptionViewItem const& option)
{
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

/// What lies behind the texts of a row.
QColor getBackground(QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    auto const group = getColourGroup(option);
    if (option.state.testFlag(QStyle::State_Selected))
        return option.palette.color(group, QPalette::Highlight);
    if (auto const colour = row.getState().backgroundColour; colour && colour->alpha != 0)
        return QtCellDrawing::toQColor(*colour);
    return option.palette.color(group, QPalette::Base);
}

QColor getForeground(QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    // Disabled rows are there to be read all the same; the disabled text of many palettes is too faint for
    // it.
    constexpr float shareWhenDisabled = 0.55F;
    auto const group = getColourGroup(option);
    auto foreground = option.palette.color(group, QPalette::Text);
    if (option.state.testFlag(QStyle::State_Selected))
        return option.palette.color(group, QPalette::HighlightedText);
    if (auto const colour = row.getState().backgroundColour; colour && colour->alpha != 0)
        foreground = QtCellDrawing::getReadableOn(QtCellDrawing::toQColor(*colour));
    if (auto const colour = row.getState().textColour)
        foreground = QtCellDrawing::toQColor(*colour);
    if (!row.getState().enabled)
        return QtCellDrawing::getMuted(foreground, getBackground(option, row), shareWhenDisabled);
    return foreground;
}

/// The foreground made to stand back, but for selected rows: the colours of a selection are close enough
/// to each other as they are.
QColor getForeground(QStyleOptionViewItem const& option, PropertyGridRow const& row, float share)
{
    auto const foreground = getForeground(option, row);
    if (option.state.testFlag(QStyle::State_Selected))
        return foreground;
    return QtCellDrawing::getMuted(foreground, getBackground(option, row), share);
}

/// The colour of units and marks.
QColor getMutedForeground(QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    return getForeground(option, row, 0.65F);
}

/// The colour of a value: one that cannot be changed stands back a little.
QColor getValueForeground(QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    auto const isFixed =
        row.getState().enabled && PropertyGridEditing::getEditor(row) == PropertyGridEditor::None;
    return isFixed ? getForeground(option, row, 0.75F) : getForeground(option, row);
}

/// Gives \p option the font that the row is written in. Making a font costs much more than a look at the row.
void applyFont(QStyleOptionViewItem& option, PropertyGridRow const& row)
{
    if (!row.getState().bold && row.getState().kind != Kind::Group)
        return;
    option.font.setBold(true);
    option.fontMetrics = QFontMetrics(option.font);
}

/// The shown text of a value, split into what comes before the unit and the unit.
std::pair<QString, QString> splitUnit(PropertyGridRow const& row)
{
    auto const text = QtCellDrawing::getOneLine(toQString(PropertyGridEditing::getDisplayedText(row)));
    auto const unit = toQString(PropertyGridNumber::getUnit(row.getQuantityPresentation()));
    if (unit.isEmpty() || !text.endsWith(unit))
        return {text, {}};
    return {text.chopped(unit.size()), unit};
}

void paintArrow(QPainter& painter, QStyleOptionViewItem const& option, PropertyGridRow const& row,
                QRect const& area)
{
    auto const size = option.fontMetrics.xHeight();
    auto const centre = QRectF(area).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(getMutedForeground(option, row));
    pen.setWidthF(std::max(1.0, size / 6.0));
    painter.setPen(pen);
    QPointF const points[] = {{centre.x() - size / 2.0, centre.y() - size / 4.0},
                              {centre.x(), centre.y() + size / 4.0},
                              {centre.x() + size / 2.0, centre.y() - size / 4.0}};
    painter.drawPolyline(points, 3);
    painter.restore();
}

void paintButton(QPainter& painter, QStyleOptionViewItem const& option, PropertyGridRow const& row,
                 QRect const& area)
{
    QStyleOptionButton button;
    button.rect = area.adjusted(0, 1, -1, -1);
    button.palette = option.palette;
    button.fontMetrics = option.fontMetrics;
    button.text = QStringLiteral("…");
    button.state = QStyle::State_Raised;
    button.state.setFlag(QStyle::State_Enabled, PropertyGridEditing::canPressButton(row));
    QtCellDrawing::getStyle(option).drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
}

/// A line to type in, its text where the shown one was, with the unit of numbers at its end.
QWidget* createLineEditor(QWidget* parent, QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    // What a line edit leaves free beside its text of itself.
    constexpr int ownMargin = 2;
    auto* const editor = new QLineEdit(parent);
    editor->setFrame(false);
    auto const margin = QtCellDrawing::getTextMargin(option);
    editor->setPlaceholderText(toQString(PropertyGridEditing::getHint(row)));
    auto const unit = toQString(PropertyGridNumber::getUnit(row.getQuantityPresentation()));
    auto const unitWidth = unit.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(unit) + margin;
    editor->setTextMargins(margin - ownMargin, 0, unitWidth, 0);
    if (unit.isEmpty())
        return editor;
    auto* const label = new QLabel(unit);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, margin, 0);
    layout->addWidget(label, 0, Qt::AlignRight | Qt::AlignVCenter);
    return editor;
}

/// Writes what stands in place of a value, so that nobody takes it for one.
void paintHint(QPainter& painter, QStyleOptionViewItem const& option, PropertyGridRow const& row,
               QRect const& area, QString const& hint)
{
    auto font = option.font;
    font.setItalic(true);
    painter.setFont(font);
    painter.setPen(getMutedForeground(option, row));
    auto const isRight = row.getState().alignment == PropertyGridAlignment::Right;
    auto const elided =
        QFontMetrics(font).elidedText(QtCellDrawing::getOneLine(hint), Qt::ElideRight, area.width());
    painter.drawText(area, Qt::AlignVCenter | (isRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::TextSingleLine,
                     elided);
}

/// What the buttons at the end of a row take of its width.
int getButtonsWidth(PropertyGridRow const& row, QStyleOptionViewItem const& option)
{
    auto const& buttons = QtPropertyGridLayout::of(row, option).buttons;
    return buttons.empty() ? 0 : buttons.back().right() + 1 - buttons.front().left();
}

QtPropertyGridButtons::Look getLook(QStyleOptionViewItem const& option, QModelIndex const& index,
                                    std::size_t button)
{
    auto const* const view = dynamic_cast<QtPropertyGridView const*>(option.widget);
    return view ? view->getButtonLook(index, button) : QtPropertyGridButtons::Look::Flat;
}

/// The colour of a value that leads somewhere, where it can be told from others.
QColor getLinkForeground(QStyleOptionViewItem const& option, PropertyGridRow const& row)
{
    if (option.state.testFlag(QStyle::State_Selected) || row.getState().textColour ||
        row.getState().backgroundColour)
        return getForeground(option, row);
    return option.palette.color(getColourGroup(option), QPalette::Link);
}

QString getComboText(QComboBox const& combo)
{
    return combo.isEditable() ? combo.currentText() : combo.itemText(combo.currentIndex());
}

} // namespace

QtPropertyGridDelegate::QtPropertyGridDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

QtPropertyGridDelegate::~QtPropertyGridDelegate() = default;

void QtPropertyGridDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option,
                                   QModelIndex const& index) const
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row || row->getState().kind == Kind::EmptyLine)
        return;
    auto const isName = index.column() == QtPropertyGridItemModel::nameColumn;
    auto const isGroup = row->getState().kind == Kind::Group;
    if (isGroup && !isName) {
        paintButtons(*painter, option, index);
        return;
    }
    painter->save();
    auto cell = option;
    applyFont(cell, *row);
    // The name of a group has the whole row to itself.
    if (isGroup && option.widget)
        cell.rect.setRight(option.widget->width() - getButtonsWidth(*row, option));
    painter->setClipRect(cell.rect);
    painter->setFont(cell.font);
    if (option.state.testFlag(QStyle::State_Selected))
        painter->fillRect(cell.rect, getBackground(option, *row));
    if (isName)
        paintName(*painter, cell, *row);
    else
        paintValue(*painter, cell, *row);
    painter->restore();
    if (!isName)
        paintButtons(*painter, option, index);
}

QSize QtPropertyGridDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    // All columns are as high; a view asks for thousands of heights in a row, so one answer has to do.
    if (index.column() != QtPropertyGridItemModel::nameColumn)
        return {};
    auto const lineHeight = option.fontMetrics.height();
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (row && row->getState().kind == Kind::EmptyLine)
        return {0, lineHeight / 2};
    auto const boxHeight = QtCellDrawing::getMetric(option, QStyle::PM_IndicatorHeight);
    return {0, std::max(lineHeight, boxHeight) + lineHeight / 2};
}

QWidget* QtPropertyGridDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                              QModelIndex const& index) const
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row)
        return nullptr;
    switch (PropertyGridEditing::getValueEditor(*row)) {
    case PropertyGridEditor::Text:
    case PropertyGridEditor::Number:
        return createLineEditor(parent, option, *row);
    case PropertyGridEditor::Choice:
        return createChoiceEditor(parent, *row);
    default:
        return nullptr;
    }
}

void QtPropertyGridDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const
{
    // A change of the row from elsewhere does not overwrite what the user has begun to type.
    if (editor->property(openedWithProperty).isValid())
        return;
    auto const text = index.data(Qt::EditRole).toString();
    editor->setProperty(openedWithProperty, text);
    if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
        line->setText(text);
        line->selectAll();
    } else if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
        if (combo->isEditable()) {
            combo->setEditText(text);
            combo->lineEdit()->selectAll();
        } else {
            combo->setPlaceholderText(text);
        }
    }
}

void QtPropertyGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                          QModelIndex const& index) const
{
    auto const openedWith = editor->property(openedWithProperty).toString();
    QString text = openedWith;
    bool isTyped = false;
    if (auto const* const line = qobject_cast<QLineEdit*>(editor)) {
        text = line->text();
        // What was typed counts even if it says what the row showed: the zero of a row without a value.
        isTyped = line->isModified();
    } else if (auto const* const combo = qobject_cast<QComboBox*>(editor))
        text = !combo->isEditable() && combo->currentIndex() < 0 ? openedWith : getComboText(*combo);
    if (isTyped || text != openedWith)
        model->setData(index, text, Qt::EditRole);
}

void QtPropertyGridDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                                  QModelIndex const& index) const
{
    if (auto const* const row = QtPropertyGridItemModel::getRow(index))
        editor->setGeometry(QtPropertyGridLayout::of(*row, option).value);
}

bool QtPropertyGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                       QStyleOptionViewItem const& option, QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    auto const layout = QtPropertyGridLayout::of(*row, option);
    auto const isName = index.column() == QtPropertyGridItemModel::nameColumn;
    if (auto const button = isName ? std::nullopt : layout.findButton(event->pos())) {
        auto const text = QtPropertyGridButtons::getText(row->getState().buttons[*button]);
        QToolTip::showText(event->globalPos(), QtCellDrawing::getToolTip(text), view);
        return true;
    }
    auto const shown = index.data(Qt::DisplayRole).toString();
    auto cell = option;
    applyFont(cell, *row);
    QString text;
    auto const room = isName ? option.rect.width() : layout.value.width();
    if (cell.fontMetrics.horizontalAdvance(shown) + 2 * QtCellDrawing::getTextMargin(option) > room)
        text = shown;
    if (isName && !row->getState().description.empty())
        text = toQString(row->getState().name + "\n" + row->getState().description);
    QToolTip::showText(event->globalPos(), QtCellDrawing::getToolTip(text), view);
    return true;
}

void QtPropertyGridDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
}

bool QtPropertyGridDelegate::editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/,
                                         QStyleOptionViewItem const& /*option*/, QModelIndex const& /*index*/)
{
    return false;
}

void QtPropertyGridDelegate::paintName(QPainter& painter, QStyleOptionViewItem const& option,
                                       PropertyGridRow const& row) const
{
    auto const margin = QtCellDrawing::getTextMargin(option);
    auto const indentation =
        static_cast<int>(row.getState().nameIndentationInCharacters) * option.fontMetrics.averageCharWidth();
    auto const area = option.rect.adjusted(margin + indentation, 0, -margin, 0);
    auto const text = option.fontMetrics.elidedText(QtCellDrawing::getOneLine(toQString(row.getState().name)),
                                                    Qt::ElideRight, area.width());
    painter.setPen(getForeground(option, row));
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
}

void QtPropertyGridDelegate::paintValue(QPainter& painter, QStyleOptionViewItem const& option,
                                        PropertyGridRow const& row) const
{
    auto const layout = QtPropertyGridLayout::of(row, option);
    if (!layout.checkBox.isEmpty())
        QtCellDrawing::paintCheckBox(painter, option, row.getState().checkState, layout.checkBox,
                                     PropertyGridEditing::canClickCheckBox(row));
    if (!layout.button.isEmpty())
        paintButton(painter, option, row, layout.button);
    if (!layout.arrow.isEmpty())
        paintArrow(painter, option, row, layout.arrow);

    auto const margin = QtCellDrawing::getTextMargin(option);
    auto area = layout.value.adjusted(margin, 0, -margin, 0);
    if (!layout.arrow.isEmpty())
        area.setRight(layout.arrow.left() - 1);
    if (auto const hint = PropertyGridEditing::getHint(row); !hint.empty()) {
        paintHint(painter, option, row, area, toQString(hint));
        return;
    }
    auto const [value, unit] = splitUnit(row);
    auto const& metrics = option.fontMetrics;
    auto const unitWidth = unit.isEmpty() ? 0 : metrics.horizontalAdvance(unit);
    auto const elided = metrics.elidedText(value, Qt::ElideRight, std::max(0, area.width() - unitWidth));
    auto const isRight = row.getState().alignment == PropertyGridAlignment::Right;
    auto const valueWidth = isRight || !unit.isEmpty() ? metrics.horizontalAdvance(elided) : 0;
    auto const left =
        isRight ? std::max(area.left(), area.right() + 1 - valueWidth - unitWidth) : area.left();

    constexpr int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine;
    auto font = painter.font();
    font.setUnderline(row.getState().isLink);
    painter.setFont(font);
    painter.setPen(row.getState().isLink ? getLinkForeground(option, row) : getValueForeground(option, row));
    painter.drawText(QRect(left, area.top(), area.right() + 1 - left, area.height()), flags, elided);
    if (unit.isEmpty())
        return;
    painter.setPen(getMutedForeground(option, row));
    painter.drawText(QRect(left + valueWidth, area.top(), unitWidth + margin, area.height()), flags, unit);
}

void QtPropertyGridDelegate::paintButtons(QPainter& painter, QStyleOptionViewItem const& option,
                                          QModelIndex const& index) const
{
    auto const& row = *QtPropertyGridItemModel::getRow(index);
    if (row.getState().buttons.empty())
        return;
    auto const areas = QtPropertyGridLayout::of(row, option).buttons;
    for (std::size_t button = 0; button < areas.size(); ++button) {
        if (option.state.testFlag(QStyle::State_Selected))
            painter.fillRect(areas[button], getBackground(option, row));
        QtPropertyGridButtons::paint(painter, option, row.getState().buttons[button], areas[button],
                                     getForeground(option, row, 0.75F), getLook(option, index, button));
    }
}

QWidget* QtPropertyGridDelegate::createChoiceEditor(QWidget* parent, PropertyGridRow const& row) const
{
    auto& self = const_cast<QtPropertyGridDelegate&>(*this);
    auto* const combo = QtChoiceEditor::create(parent, self, PropertyGridEditing::canTypeFreely(row));
    combo->setFrame(false);
    if (combo->isEditable())
        combo->lineEdit()->setPlaceholderText(toQString(PropertyGridEditing::getHint(row)));
    for (auto const& option : row.getState().options) {
        combo->addItem(toQString(option.text));
        auto* const items = qobject_cast<QStandardItemModel*>(combo->model());
        if (items && !option.enabled)
            items->item(items->rowCount() - 1)->setEnabled(false);
    }
    return combo;
}

} // namespace qev::ui
