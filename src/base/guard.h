#pragma once

#include "base/clock.h"
#include "base/failure.h"
#include "base/progress.h"
#include "base/prompts.h"
#include "base/system/paths.h"

#include <QStringView>

#include <concepts>
#include <exception>

namespace kurbo {

// What a procedure needs of its surroundings; it is handed in, never reached for.
struct Context {
    Prompts& prompts;
    const Clock& clock;
    const Paths& paths;
    Progress& progress;
};

// The two ends of a failure: a box alone, or a box and a log line.
void report(const Context& context, const Complaint& complaint);
void report(const Context& context, QStringView module, QStringView procedure, const Fault& fault);
// Any other exception, as a fault of the program.
[[nodiscard]] Fault faultOf(const std::exception& error);

// Runs `body` and gives its result. A failure is reported here, once, under module and procedure, and the failure
// value is given; the caller stops without another word.
template <typename Result, typename Body>
requires std::convertible_to<std::invoke_result_t<Body>, Result>
[[nodiscard]] Result guarded(const Context& context, QStringView module, QStringView procedure, Result failure,
                             Body&& body) {
    try {
        return body();
    } catch (const Complaint& complaint) {
        report(context, complaint);
    } catch (const Fault& fault) {
        report(context, module, procedure, fault);
    } catch (const std::exception& error) {
        report(context, module, procedure, faultOf(error));
    }
    return failure;
}

// The same for a procedure without a result.
template <typename Body>
void guarded(const Context& context, QStringView module, QStringView procedure, Body&& body) {
    (void)guarded(context, module, procedure, false, [&body] {
        body();
        return true;
    });
}

} // namespace kurbo
