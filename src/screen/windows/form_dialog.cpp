#include "screen/windows/form_dialog.h"

#include "base/product.h"

namespace kurbo {

FormDialog::FormDialog(const QString& title, QWidget* parent) : QDialog(parent) {
    setWindowTitle(productName() + u'－' + title);
}

} // namespace kurbo
