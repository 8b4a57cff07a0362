#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <functional>

namespace kurbo {

class GridModel;

// Paints the cells of a grid, and edits them: a drop-down where the cell has a list, a text field elsewhere. A text
// that the grid's rules refuse keeps its editor open.
class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT

  public:
    // Shown to the person once for each refusal.
    using Refuse = std::function<void(const QString& text)>;

    explicit GridDelegate(QObject* parent) : QStyledItemDelegate(parent) {}
    void setGrid(GridModel* grid, const QFontMetrics& font, Refuse refuse);

    [[nodiscard]] bool isEditing() const { return !editor_.isNull(); }
    // The text in the open editor.
    [[nodiscard]] QString EditText() const;
    // Takes the open editor's text and closes it; false when it is refused. True without an editor.
    bool finish();
    void cancel();
    // Drops the open editor's list down, where it is one.
    void openList();

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

  Q_SIGNALS:
    // The text was taken; the cursor goes on by so many cells.
    void goOn(int rows, int columns);
    // The person has changed the text in the open editor.
    void typed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

  private:
    bool keyPressed(QKeyEvent* event);
    // Takes what is chosen in the editor's list, once the list is gone.
    void choiceEvent(QEvent* event);
    [[nodiscard]] bool isOwnList(const QWidget* popup) const;
    bool staysOpen(Qt::FocusReason reason);
    void focusLost(Qt::FocusReason reason);
    [[nodiscard]] QString refusal() const;

    GridModel* grid_ = nullptr;
    Refuse refuse_;
    int wideSign_ = 0;
    mutable QPointer<QWidget> editor_;
    mutable QPersistentModelIndex cell_;
    // A refusal waits to be shown.
    bool refusing_ = false;
};

} // namespace kurbo
