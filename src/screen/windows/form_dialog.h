#pragma once

#include <QDialog>

namespace kurbo {

// A form that is a dialog. Message boxes and file dialogs are dialogs as well, but no forms.
class FormDialog : public QDialog {
    Q_OBJECT

  protected:
    // The title stands behind the product's name.
    FormDialog(const QString& title, QWidget* parent);
};

} // namespace kurbo
