#include "TokenCharacters.h"

#include "SearchTokenizer.h"
#include "ServiceErrors.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <map>
#include <memory>

namespace qs {

namespace {

// Kept for the life of the process on purpose: the probe connections must outlive every
// search, and tearing them down after Qt's own connection list is gone is unsafe.
std::map<QString, std::unique_ptr<TokenCharacters>>& instances() {
    static auto* map = new std::map<QString, std::unique_ptr<TokenCharacters>>();
    return *map;
}

QString quotedSql(const QString& text) {
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

} // namespace

TokenCharacters& TokenCharacters::forTokenizer(const QString& tokenize, const QString& source) {
    auto& map = instances();
    auto found = map.find(tokenize);
    if (found != map.end())
        return *found->second;
    std::unique_ptr<TokenCharacters> made(new TokenCharacters(
        tokenize, QStringLiteral("qs_tokens_%1").arg(static_cast<qulonglong>(map.size() + 1))));
    made->open(source);
    return *map.emplace(tokenize, std::move(made)).first->second;
}

QString TokenCharacters::tokenizerOf(const QString& createStatement) {
    static const QRegularExpression pattern(QStringLiteral("tokenize\\s*=\\s*'((?:[^']|'')*)'"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(createStatement);
    if (!match.hasMatch())
        return QStringLiteral("unicode61");
    QString arguments = match.captured(1);
    arguments.replace(QLatin1String("''"), QLatin1String("'"));
    // The words of the piece tokenizer are those of unicode61 with the same arguments.
    const QString pieces = QLatin1String(kSearchTokenizer);
    if (arguments == pieces || arguments.startsWith(pieces + QLatin1Char(' ')))
        arguments.replace(0, pieces.size(), QStringLiteral("unicode61"));
    return arguments;
}

TokenCharacters::TokenCharacters(const QString& tokenize, const QString& connectionName)
    : mTokenize(tokenize), mConnectionName(connectionName) {}

void TokenCharacters::open(const QString& source) {
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), mConnectionName);
    db.setDatabaseName(QStringLiteral(":memory:"));
    QSqlQuery create(db);
    if (!db.open() ||
        !create.exec(QStringLiteral("CREATE VIRTUAL TABLE Probe USING fts5 (x, tokenize = %1)")
                         .arg(quotedSql(mTokenize))))
        RaiseServiceError(kErrStorage, source,
                          db.lastError().text() + QLatin1Char(' ') + create.lastError().text());
    mSource = source;
}

TokenCharacters::Kind TokenCharacters::kind(char32_t c) {
    if (c < 0x80)
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
                   ? Kind::Word
                   : Kind::Separator;
    const auto known = mKnown.constFind(c);
    if (known != mKnown.constEnd())
        return *known;
    const Kind found = probe(c);
    mKnown.insert(c, found);
    return found;
}

bool TokenCharacters::boundaryBefore(const QString& text, int index) {
    while (index > 0) {
        char32_t c = text.at(index - 1).unicode();
        int width = 1;
        if (text.at(index - 1).isLowSurrogate() && index >= 2 &&
            text.at(index - 2).isHighSurrogate()) {
            c = QChar::surrogateToUcs4(text.at(index - 2), text.at(index - 1));
            width = 2;
        }
        switch (kind(c)) {
        case Kind::Separator:
            return true;
        case Kind::Word:
            return false;
        case Kind::Mark:
            index -= width;
            break;
        }
    }
    return true;
}

// Row 1 "x", c, "x" is one word when c continues a word; row 2 c, "x" holds the word "x" alone
// when c does not begin one.
TokenCharacters::Kind TokenCharacters::probe(char32_t c) {
    const QString character = QString::fromUcs4(&c, 1);
    QSqlDatabase db = QSqlDatabase::database(mConnectionName, false);
    QSqlQuery query(db);
    query.setForwardOnly(true);
    bool ok = query.exec(QStringLiteral("DELETE FROM Probe"));
    ok = ok && query.prepare(QStringLiteral("INSERT INTO Probe (rowid, x) VALUES (1, ?), (2, ?)"));
    if (ok) {
        query.addBindValue(QLatin1Char('x') + character + QLatin1Char('x'));
        query.addBindValue(character + QLatin1Char('x'));
        ok = query.exec();
    }
    ok = ok && query.exec(QStringLiteral("SELECT rowid FROM Probe WHERE Probe MATCH 'x'"));
    if (!ok)
        RaiseServiceError(kErrStorage, mSource, query.lastError().text());
    bool splitsInside = false;
    bool beginsNothing = false;
    while (query.next()) {
        splitsInside = splitsInside || query.value(0).toInt() == 1;
        beginsNothing = beginsNothing || query.value(0).toInt() == 2;
    }
    if (splitsInside)
        return Kind::Separator;
    return beginsNothing ? Kind::Mark : Kind::Word;
}

} // namespace qs
