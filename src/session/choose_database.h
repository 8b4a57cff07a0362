#pragma once

#include "store/client.h"

namespace kurbo {

enum class ChoiceEnd {
    Stay,    // the person wants to correct the path
    GivenUp, // stopped, or a failure that was said: the client keeps its old path, and DbUsable is false
    Chosen,  // the client works on the new database, and "Parm.dat" names it
};

// The end of the database dialog: tests the path that was typed, asks when it is no good, and takes it over.
[[nodiscard]] ChoiceEnd chooseDatabase(Client& client, const QString& typed);
// The end by the cancel button: the client goes on with its path if there is a file.
void keepDatabase(Client& client);

} // namespace kurbo
