#include "store/file/bulk_change.h"

#include "base/failure.h"

namespace kurbo {

// Relations can be switched off outside of a transaction only, so that comes first.
BulkChange::BulkChange(Connection& connection, const QStringList& tables) : connection_(connection) {
    connection_.engine("PRAGMA foreign_keys=OFF; PRAGMA ignore_check_constraints=ON; PRAGMA cache_size=-64000");
    transaction_.emplace(connection_);
    for (const QString& table : tables) dropIndexes(table);
}

BulkChange::~BulkChange() {
    transaction_.reset();
    if (!connection_.isOpen()) return;
    try {
        connection_.engine("PRAGMA foreign_keys=ON; PRAGMA ignore_check_constraints=OFF");
    } catch (const Fault&) {
        connection_.close();
    }
}

void BulkChange::dropIndexes(const QString& table) {
    QByteArrayList drops;
    {
        Rows rows = connection_.rows(QStringLiteral("SELECT name, sql FROM sqlite_master WHERE (type = 'index') "
                                                    "AND (tbl_name = ?) AND (sql Is Not Null) ORDER BY name"),
                                     {table});
        while (rows.next()) {
            drops.append("DROP INDEX \"" + rows.text(0).toUtf8() + '"');
            indexes_.append(rows.text(1).toUtf8());
        }
    }
    for (const QByteArray& drop : drops) connection_.engine(drop);
}

void BulkChange::commit() {
    for (const QByteArray& index : indexes_) connection_.engine(index);
    transaction_->commit();
}

} // namespace kurbo
