#pragma once

#include "store/client.h"

namespace kurbo {

// The end of the client, after its windows: closes the connections, compacts the database and refreshes "Backup.mdb".
// A database that another client uses is left as it is, without a word. Failures are reported under `frmLogin`.
void shutDown(Client& client);

} // namespace kurbo
