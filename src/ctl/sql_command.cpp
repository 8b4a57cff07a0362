#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/result_output.h"
#include "store/connection.h"
#include "store/dialect/dialect.h"
#include "store/dialect/dialect_lexer.h"
#include "store/file/database_file.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>

namespace kurbo {
namespace {

QString standardInput() {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) return {};
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(input.readAll());
    if (decoder.hasError())
        throw Complaint(
            lines(QStringLiteral("標準入力の文字コードが不正です。"), QStringLiteral("UTF-8で入力して下さい。")));
    return text;
}

void runStatement(Connection& connection, const QString& statement, Format format) {
    if (!translated(statement).reads) {
        connection.execute(statement);
        return;
    }
    Rows rows = connection.rows(statement);
    print(rows, format);
}

Exit runSql(const Options& options) {
    const Format format = formatNamed(options.value(QStringLiteral("format")));
    const QStringList statements = splitStatements(standardInput());
    const auto reads = [](const QString& statement) { return translated(statement).reads; };
    Connection connection;
    connection.open(options.argument(0), databasePassword());
    // A question alone also works where nothing can be written.
    if (std::ranges::all_of(statements, reads)) {
        const Reading reading(connection);
        for (const QString& statement : statements) runStatement(connection, statement, format);
        return Exit::Done;
    }
    Transaction transaction(connection);
    for (const QString& statement : statements) runStatement(connection, statement, format);
    transaction.commit();
    return Exit::Done;
}

} // namespace

const Command sqlCommand{
    .name = u"sql",
    .run = runSql,
    .arguments = u"FILE",
    .summary = u"Runs the statements of standard input and prints the rows of those that read.",
    .more = u"They are in the dialect of the system and in UTF-8, each ended by a semicolon, and are one transaction.",
    .options = {},
    .example = u"sql demo.mdb --format json < questions.sql",
};

} // namespace kurbo
