#include "screen/grid/grid_delegate.h"

#include "screen/fields/fields.h"
#include "screen/grid/grid_model.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int margin = 3;

QColor colourOf(const QVariant& value, const QColor& preset) {
    if (!value.isValid()) return preset;
    const auto colour = value.value<GridColour>();
    return {colour.red, colour.green, colour.blue};
}

Qt::Alignment alignmentOf(const QModelIndex& index) {
    switch (static_cast<GridAlign>(index.data(GridModel::AlignRole).toInt())) {
    case GridAlign::Centre:
        return Qt::AlignCenter;
    case GridAlign::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// `wideSign` is what the widest sign takes: measuring a text costs as much as painting it.
void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, int wideSign) {
    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty()) return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QPalette& colours = option.palette;
    painter.setPen(selected ? colours.color(QPalette::HighlightedText)
                            : colourOf(index.data(GridModel::ForeColourRole), colours.color(QPalette::Text)));
    painter.setFont(option.font);
    const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const bool surelyFits = text.size() * wideSign <= room.width();
    const QString fitting = surelyFits ? text : option.fontMetrics.elidedText(text, Qt::ElideRight, room.width());
    const auto alignment = fitting.size() == text.size() ? alignmentOf(index) : Qt::AlignLeft | Qt::AlignVCenter;
    painter.drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, fitting);
}

QRect boxIn(const QRect& cell) {
    constexpr int side = 15;
    QRect box(0, 0, side, side);
    box.moveCenter(cell.center());
    return box;
}

void paintBox(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QVariant checked = index.data(Qt::CheckStateRole);
    if (!checked.isValid()) return;
    QStyleOptionViewItem box(option);
    box.rect = boxIn(option.rect);
    box.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    box.state |= checked.toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, option.widget);
}

// "0" is a digit that must be there, "#" one that may; the toolkit's signs for them are "9" and "0".
QString inputMask(const QString& mask) {
    QString own;
    for (const QChar sign : mask) own += sign == u'#' ? u'0' : sign == u'0' ? u'9' : sign;
    return own.isEmpty() ? own : own + QStringLiteral(";_");
}

QString withoutSigns(QString text, const QString& mask) {
    for (const QChar sign : mask)
        if (sign != u'#' && sign != u'0') text.remove(sign);
    return text;
}

QWidget* dropDown(QWidget* parent, const GridList& list) {
    auto* const combo = new QComboBox(parent);
    combo->setEditable(list.isOpen());
    combo->setInsertPolicy(QComboBox::NoInsert);
    if (list.isOpen()) {
        // What is typed counts, not the entry that begins so.
        combo->setCompleter(nullptr);
        combo->addItem(QString());
    }
    for (const GridList::Entry& entry : list.entries()) combo->addItem(entry.text);
    return combo;
}

QWidget* textField(QWidget* parent, const QString& mask) {
    auto* const field = new QLineEdit(parent);
    field->setFrame(false);
    field->setTextMargins(1, 0, 1, 0);
    field->setInputMask(inputMask(mask));
    return field;
}

} // namespace

void GridDelegate::setGrid(GridModel* grid, const QFontMetrics& font, Refuse refuse) {
    grid_ = grid;
    wideSign_ = font.horizontalAdvance(u'国');
    refuse_ = std::move(refuse);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QVariant paper = index.data(GridModel::BackColourRole);
    if (selected)
        painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    else if (paper.isValid())
        painter->fillRect(option.rect, colourOf(paper, Qt::white));
    paintText(*painter, option, index, wideSign_);
    paintBox(*painter, option, index);
    const auto* const view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (!view || view->currentIndex() != index) return;
    painter->setPen(QPen(option.palette.color(QPalette::HighlightedText), 1, Qt::DotLine));
    painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const GridRules* const rules = grid_->rules();
    const QString offered = rules->comboList(index.row(), index.column());
    const GridList list = offered.isEmpty() ? grid_->ColComboList(index.column()) : GridList(offered);
    editor_ = list.isEmpty() ? textField(parent, grid_->ColEditMask(index.column())) : dropDown(parent, list);
    // A style sheet keeps a list's field from taking the font of what holds it.
    for (QWidget* const part : {editor_.data(), static_cast<QWidget*>(editorOf(editor_))})
        if (part) part->setFont(option.font);
    cell_ = index;
    SetImeOpen(editor_, rules->isJapanese(index.column()));
    if (const auto* const combo = qobject_cast<QComboBox*>(editor_.data())) {
        connect(combo, &QComboBox::editTextChanged, this, &GridDelegate::typed);
        for (QObject* const part :
             {static_cast<QObject*>(combo->view()), static_cast<QObject*>(combo->view()->viewport())})
            part->installEventFilter(const_cast<GridDelegate*>(this));
    } else if (const auto* const field = qobject_cast<QLineEdit*>(editor_.data())) {
        connect(field, &QLineEdit::textEdited, this, &GridDelegate::typed);
    }
    return editor_;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = grid_->CellText(index.row(), index.column());
    if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text));
        if (combo->isEditable()) combo->setEditText(text);
    } else if (auto* const field = qobject_cast<QLineEdit*>(editor)) {
        const bool money = grid_->ColDataType(index.column()) == GridType::Currency;
        field->setText(money ? grid_->TextMatrix(index.row(), index.column()) : text);
        field->selectAll();
    }
}

QString GridDelegate::EditText() const {
    if (const auto* const combo = qobject_cast<const QComboBox*>(editor_.data())) return combo->currentText();
    const auto* const field = qobject_cast<const QLineEdit*>(editor_.data());
    if (!field) return {};
    const QString mask = grid_->ColEditMask(cell_.column());
    const QString text = field->text();
    return !mask.isEmpty() && withoutSigns(text, mask).trimmed().isEmpty() ? QString() : text;
}

void GridDelegate::setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/, const QModelIndex& index) const {
    if (refusal().isEmpty()) grid_->edit(index.row(), index.column(), EditText());
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const {
    QRect place = option.rect;
    // A word of the list fits beside its arrow and within its frame.
    if (qobject_cast<const QComboBox*>(editor)) place.setSize(place.size().expandedTo(editor->sizeHint()));
    place.moveCenter({place.center().x(), option.rect.center().y()});
    place.moveRight(std::min(place.right(), editor->parentWidget()->width() - 1));
    editor->setGeometry(place);
}

QString GridDelegate::refusal() const {
    const QString text = EditText().trimmed();
    if (!cell_.isValid() || text.isEmpty()) return {};
    return grid_->rules()->refusal(cell_.row(), cell_.column(), text);
}

bool GridDelegate::finish() {
    if (!editor_) return true;
    if (editor_->hasFocus()) QGuiApplication::inputMethod()->commit();
    if (refusing_) return false;
    const QString text = refusal();
    if (!text.isEmpty()) {
        refusing_ = true;
        refuse_(text);
        refusing_ = false;
        if (editor_) editor_->setFocus();
        return false;
    }
    QWidget* const editor = editor_;
    Q_EMIT commitData(editor);
    editor_.clear();
    Q_EMIT closeEditor(editor, NoHint);
    return true;
}

void GridDelegate::cancel() {
    if (!editor_) return;
    QWidget* const editor = editor_;
    editor_.clear();
    Q_EMIT closeEditor(editor, RevertModelCache);
}

void GridDelegate::openList() {
    if (auto* const combo = qobject_cast<QComboBox*>(editor_.data())) combo->showPopup();
}

bool GridDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (watched != editor_) {
        choiceEvent(event);
        return false;
    }
    if (event->type() == QEvent::KeyPress) return keyPressed(static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::FocusOut) focusLost(static_cast<QFocusEvent*>(event)->reason());
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return false;
}

bool GridDelegate::keyPressed(QKeyEvent* event) {
    struct Way {
        int key;
        int rows = 0;
        int columns = 0;
        bool inLists = false; // a list uses the key itself where this is false
    };
    constexpr int page = 10;
    constexpr std::array ways{
        Way{.key = Qt::Key_Return, .rows = 1, .inLists = true},
        Way{.key = Qt::Key_Enter, .rows = 1, .inLists = true},
        Way{.key = Qt::Key_Tab, .columns = 1, .inLists = true},
        Way{.key = Qt::Key_Backtab, .columns = -1, .inLists = true},
        Way{.key = Qt::Key_Up, .rows = -1},
        Way{.key = Qt::Key_Down, .rows = 1},
        Way{.key = Qt::Key_PageUp, .rows = -page},
        Way{.key = Qt::Key_PageDown, .rows = page},
    };
    if (event->key() == Qt::Key_Escape) {
        cancel();
        return true;
    }
    const auto* const way = std::ranges::find(ways, event->key(), &Way::key);
    const bool list = qobject_cast<const QComboBox*>(editor_.data()) != nullptr;
    if (way == ways.end() || (list && !way->inLists)) return false;
    if (finish()) Q_EMIT goOn(way->rows, way->columns);
    return true;
}

// The list's own rows, that is: the keys Up and Down in the closed field choose as well, and stay there.
void GridDelegate::choiceEvent(QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                                                           static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
    if (!key && event->type() != QEvent::MouseButtonRelease) return;
    const auto take = [this, editor = editor_] {
        if (editor && editor == editor_ && !QApplication::activePopupWidget()) finish();
    };
    QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

// A popup is a window of its own, and a child of what opened it.
bool GridDelegate::isOwnList(const QWidget* popup) const {
    for (const QObject* part = popup; part; part = part->parent())
        if (part == editor_) return true;
    return false;
}

// A menu takes a good text, so that its commands know it. Another window, or the editor's own list, leaves the editor
// as it is.
bool GridDelegate::staysOpen(Qt::FocusReason reason) {
    const QWidget* const popup = QApplication::activePopupWidget();
    if (isOwnList(popup) || reason == Qt::ActiveWindowFocusReason) return true;
    const bool menu = reason == Qt::MenuBarFocusReason || reason == Qt::PopupFocusReason;
    return menu && (!refusal().isEmpty() || finish());
}

// The click that took the focus is let to its end before a refusal is shown.
void GridDelegate::focusLost(Qt::FocusReason reason) {
    if (refusing_ || staysOpen(reason)) return;
    const QString text = refusal();
    if (text.isEmpty()) {
        finish();
        return;
    }
    refusing_ = true;
    const auto show = [this, text] {
        if (editor_) refuse_(text);
        refusing_ = false;
        if (editor_) editor_->setFocus();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

bool GridDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
    const QVariant checked = index.data(Qt::CheckStateRole);
    if (!checked.isValid() || !index.flags().testFlag(Qt::ItemIsUserCheckable)) return false;
    bool toggled = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* const click = static_cast<QMouseEvent*>(event);
        toggled = click->button() == Qt::LeftButton && boxIn(option.rect).contains(click->position().toPoint());
    } else if (event->type() == QEvent::KeyPress) {
        toggled = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    }
    const auto other = checked.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    return toggled && model->setData(index, other, Qt::CheckStateRole);
}

} // namespace kurbo
