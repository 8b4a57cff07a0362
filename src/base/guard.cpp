#include "base/guard.h"

#include "base/error_log.h"

namespace kurbo {

void report(const Context& context, const Complaint& complaint) {
    context.prompts.exclaim(complaint.description());
}

void report(const Context& context, QStringView module, QStringView procedure, const Fault& fault) {
    context.prompts.ask({fault.source() + u'－' + procedure.toString(),
                         lines(QStringLiteral("エラー番号：") + QString::number(fault.number()), fault.description()),
                         Icon::Critical});
    LogError(context.paths.AppPath, {context.clock.today(), module.toString(), procedure.toString(), fault.source(),
                                     fault.number(), fault.description()});
}

Fault faultOf(const std::exception& error) {
    constexpr std::int64_t internalError = 51;
    return {internalError, QStringLiteral("Kurbo"), QString::fromUtf8(error.what())};
}

} // namespace kurbo
