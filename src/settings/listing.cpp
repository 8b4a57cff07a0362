#include "settings/listing.h"

#include "base/system/code_page.h"
#include "base/system/files.h"

namespace kurbo {

QString listingTitle(const QString& subject, Day today) {
    return QStringLiteral("%1  (%2 現在)").arg(subject, slashDate(today));
}

QString listingLabel(const QString& label, int width) {
    return QString(width - byteLength(label), u' ') + label + u'：';
}

bool showListing(const Context& context, QStringView form, QStringView procedure, const QStringList& listing) {
    return guarded(context, form, procedure, false, [&] {
        const QString path = context.paths.PrintPath;
        replaceFile(path, (listing.join(u'\n') + u'\n').toUtf8(), ownersMode);
        context.prompts.showText(path);
        return true;
    });
}

} // namespace kurbo
