#pragma once

#include "store/client.h"

namespace kurbo {

// Goes to the file in which a section lives, for a screen that shows `from` to `to`: CurrentConnection points at it,
// and the session holds the person's rights for that section, as that file tells them. False after a refusal, which is
// told: no such section, its file missing or unusable, no calendar there, no right to look. Then everything is as
// before.
[[nodiscard]] bool switchSection(Client& client, const QString& section, Day from, Day to);

// Back to the home file and to the rights of the person's own section; closes the other file.
void leaveSection(Client& client);

} // namespace kurbo
