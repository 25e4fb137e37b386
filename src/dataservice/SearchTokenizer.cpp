#include "SearchTokenizer.h"

#include "SqliteHandle.h"

#include <QSqlDatabase>
#include <cstring>
#include <new>
#include <sqlite3.h>
#include <string>

namespace qs {

namespace {

constexpr char kJoin = '\x01';

fts5_api* Fts5Of(sqlite3* db) {
    fts5_api* api = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
        sqlite3_bind_pointer(statement, 1, static_cast<void*>(&api), "fts5_api_ptr", nullptr);
        sqlite3_step(statement);
    }
    sqlite3_finalize(statement);
    return api;
}

// One instance per index: the unicode61 tokenizer made with the index's arguments.
struct Pieces {
    fts5_tokenizer words{};
    Fts5Tokenizer* wordsInstance = nullptr;
};

// One call of xTokenize: each word waits for the next one (or the end) to learn its separator.
struct Run {
    void* context = nullptr;
    int (*sink)(void*, int, const char*, int, int, int) = nullptr;
    const char* text = nullptr;
    bool prefixQuery = false;
    bool pending = false;
    std::string word;
    int wordStart = 0;
    int wordEnd = 0;
    std::string token;

    int flush(int separatorEnd, bool last) {
        if (!pending)
            return SQLITE_OK;
        pending = false;
        token = word;
        if (!(last && prefixQuery && wordEnd == separatorEnd)) {
            token += kJoin;
            const char* separator = text + wordEnd;
            const int length = separatorEnd - wordEnd;
            const void* nul = std::memchr(separator, 0, static_cast<size_t>(length));
            const int kept = nul ? int(static_cast<const char*>(nul) - separator) : length;
            if (kept > kSearchSeparatorBytes || kept < length) {
                token.append(separator, static_cast<size_t>(qMin(kept, kSearchSeparatorBytes)));
                token += kJoin;
            } else {
                token.append(separator, static_cast<size_t>(length));
            }
        }
        return sink(context, 0, token.data(), int(token.size()), wordStart, separatorEnd);
    }
};

int OnWord(void* context, int flags, const char* token, int length, int start, int end) {
    auto* run = static_cast<Run*>(context);
    // unicode61 gives no colocated tokens; a synonym would have no separator of its own.
    if (flags & FTS5_TOKEN_COLOCATED)
        return SQLITE_OK;
    try {
        const int rc = run->flush(start, false);
        if (rc != SQLITE_OK)
            return rc;
        run->pending = true;
        run->word.assign(token, static_cast<size_t>(length));
        run->wordStart = start;
        run->wordEnd = end;
        return SQLITE_OK;
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
}

int CreatePieces(void* api, const char** arguments, int count, Fts5Tokenizer** made) {
    auto* pieces = new (std::nothrow) Pieces;
    if (!pieces)
        return SQLITE_NOMEM;
    void* wordsData = nullptr;
    int rc = static_cast<fts5_api*>(api)->xFindTokenizer(static_cast<fts5_api*>(api), "unicode61",
                                                         &wordsData, &pieces->words);
    if (rc == SQLITE_OK)
        rc = pieces->words.xCreate(wordsData, arguments, count, &pieces->wordsInstance);
    if (rc != SQLITE_OK) {
        delete pieces;
        return rc;
    }
    *made = reinterpret_cast<Fts5Tokenizer*>(pieces);
    return SQLITE_OK;
}

void DeletePieces(Fts5Tokenizer* tokenizer) {
    auto* pieces = reinterpret_cast<Pieces*>(tokenizer);
    pieces->words.xDelete(pieces->wordsInstance);
    delete pieces;
}

int TokenizePieces(Fts5Tokenizer* tokenizer, void* context, int flags, const char* text, int size,
                   int (*sink)(void*, int, const char*, int, int, int)) {
    auto* pieces = reinterpret_cast<Pieces*>(tokenizer);
    Run run;
    run.context = context;
    run.sink = sink;
    run.text = text;
    run.prefixQuery = (flags & FTS5_TOKENIZE_QUERY) && (flags & FTS5_TOKENIZE_PREFIX);
    const int rc = pieces->words.xTokenize(pieces->wordsInstance, &run, flags, text, size, OnWord);
    if (rc != SQLITE_OK)
        return rc;
    try {
        return run.flush(size, true);
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
}

} // namespace

bool InstallSearchTokenizer(sqlite3* db) {
    fts5_api* api = db ? Fts5Of(db) : nullptr;
    if (!api)
        return false;
    static fts5_tokenizer pieces{CreatePieces, DeletePieces, TokenizePieces};
    return api->xCreateTokenizer(api, kSearchTokenizer, api, &pieces, nullptr) == SQLITE_OK;
}

bool InstallSearchTokenizer(const QSqlDatabase& db) {
    return InstallSearchTokenizer(SqliteHandleOf(db));
}

} // namespace qs
