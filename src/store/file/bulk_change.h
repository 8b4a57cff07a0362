#pragma once

#include "store/connection.h"

#include <QByteArrayList>

namespace kurbo {

// A transaction over most rows of some tables, several times as fast as an ordinary one: the tables have no indexes in
// it, and the relations do nothing, so that its owner changes the rows on both sides himself. The file must be its
// owner's alone. Without commit() everything since the beginning is undone.
class BulkChange final {
  public:
    BulkChange(Connection& connection, const QStringList& tables);
    ~BulkChange();
    BulkChange(const BulkChange&) = delete;
    BulkChange& operator=(const BulkChange&) = delete;

    [[nodiscard]] Connection& connection() { return connection_; }
    // Makes the indexes anew.
    void commit();

  private:
    void dropIndexes(const QString& table);

    Connection& connection_;
    std::optional<Transaction> transaction_;
    QByteArrayList indexes_;
};

} // namespace kurbo
