#include "screen/fields/masked_box.h"

#include "base/field_tests.h"
#include "screen/fields/fields.h"
#include "screen/fields/leave_check.h"

#include <QFocusEvent>
#include <QValidator>

#include <utility>

namespace kurbo {
namespace {

QString blankText(MaskedBox::Kind kind) {
    switch (kind) {
    case MaskedBox::Date:
        return QStringLiteral("____/__/__");
    case MaskedBox::Month:
        return QStringLiteral("____/__");
    case MaskedBox::Time:
        return QStringLiteral("__:__");
    }
    return {};
}

// The toolkit's mask takes any script's digits, and signs such as "①".
class HalfWidthDigits final : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int& /*cursor*/) const override {
        for (QChar& c : text) {
            if (c.isDigit())
                c = QChar(static_cast<char16_t>(u'0' + c.digitValue()));
            else if (c.isNumber())
                return Invalid;
        }
        return Acceptable;
    }
};

} // namespace

MaskedBox::MaskedBox(QWidget* parent) : QLineEdit(parent) {
    setKind(Date);
    setValidator(new HalfWidthDigits(this));
    SetImeOpen(this, false);
}

void MaskedBox::setKind(Kind kind) {
    kind_ = kind;
    setInputMask(blankText(kind).replace(u'_', u'0') + QStringLiteral(";_"));
    clear();
}

bool MaskedBox::isBlank() const {
    return maskText() == blankText(kind_);
}

bool MaskedBox::isValid() const {
    return kind_ == Time ? isTimeText(maskText()) : day().has_value();
}

std::optional<Day> MaskedBox::day() const {
    if (kind_ == Time) return {};
    if (kind_ == Date) return parseSlashDate(maskText());
    const auto month = parseSlashMonth(maskText());
    return month ? std::optional(kurbo::Day{*month / 1}) : std::nullopt;
}

void MaskedBox::setDay(Day day) {
    if (kind_ != Time) setText(slashDate(day).left(blankText(kind_).size()));
}

void MaskedBox::setRefusal(const QString& message, Prompts& prompts) {
    delete check_;
    check_ = new LeaveCheck(
        this, [this] { return isBlank() || isValid(); }, [message, &prompts] { prompts.exclaim(message); });
}

void MaskedBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    entering_ = reason == Qt::MouseFocusReason;
    if (!entering_ && !isBlank()) selectAll();
}

// The first click takes what stands there, unless it is drawn over a part of it; later ones choose a place.
void MaskedBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    const bool first = std::exchange(entering_, false);
    if (isBlank())
        setCursorPosition(0);
    else if (first && !hasSelectedText())
        selectAll();
}

} // namespace kurbo
