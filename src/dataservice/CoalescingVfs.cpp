#include "CoalescingVfs.h"

#include <sqlite3.h>

#include <cstdlib>
#include <cstring>
#include <mutex>

namespace qs {

namespace {

// The engine's own file layer writes at most 128 KiB less one byte a call.
constexpr int kBufferBytes = 124 * 1024;

sqlite3_vfs gVfs;
sqlite3_io_methods gMethods;

// Our file; the underlying file follows it in the same allocation.
struct GatheringFile {
    sqlite3_file base;
    sqlite3_file* real;
    char* buffer;
    sqlite3_int64 offset; // where the gathered bytes go
    int length;           // how many are gathered
};

GatheringFile* self(sqlite3_file* file) {
    return reinterpret_cast<GatheringFile*>(file);
}

int flush(GatheringFile* f) {
    if (f->length == 0)
        return SQLITE_OK;
    const int rc = f->real->pMethods->xWrite(f->real, f->buffer, f->length, f->offset);
    f->length = 0;
    return rc;
}

int xClose(sqlite3_file* file) {
    GatheringFile* f = self(file);
    const int flushed = flush(f);
    const int closed = f->real->pMethods->xClose(f->real);
    std::free(f->buffer);
    f->buffer = nullptr;
    return flushed != SQLITE_OK ? flushed : closed;
}

int xRead(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xRead(f->real, data, amount, offset);
}

int xWrite(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    GatheringFile* f = self(file);
    const bool follows = f->length > 0 && offset == f->offset + f->length;
    if (!follows || f->length + amount > kBufferBytes) {
        if (const int rc = flush(f); rc != SQLITE_OK)
            return rc;
        if (amount > kBufferBytes)
            return f->real->pMethods->xWrite(f->real, data, amount, offset);
        f->offset = offset;
    }
    std::memcpy(f->buffer + f->length, data, static_cast<size_t>(amount));
    f->length += amount;
    return SQLITE_OK;
}

int xTruncate(sqlite3_file* file, sqlite3_int64 size) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xTruncate(f->real, size);
}

int xSync(sqlite3_file* file, int flags) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xSync(f->real, flags);
}

int xFileSize(sqlite3_file* file, sqlite3_int64* size) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xFileSize(f->real, size);
}

int xLock(sqlite3_file* file, int level) {
    return self(file)->real->pMethods->xLock(self(file)->real, level);
}

int xUnlock(sqlite3_file* file, int level) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xUnlock(f->real, level);
}

int xCheckReservedLock(sqlite3_file* file, int* out) {
    return self(file)->real->pMethods->xCheckReservedLock(self(file)->real, out);
}

int xFileControl(sqlite3_file* file, int op, void* arg) {
    GatheringFile* f = self(file);
    if (const int rc = flush(f); rc != SQLITE_OK)
        return rc;
    return f->real->pMethods->xFileControl(f->real, op, arg);
}

int xSectorSize(sqlite3_file* file) {
    return self(file)->real->pMethods->xSectorSize(self(file)->real);
}

int xDeviceCharacteristics(sqlite3_file* file) {
    return self(file)->real->pMethods->xDeviceCharacteristics(self(file)->real);
}

int xOpen(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    auto* real = static_cast<sqlite3_vfs*>(vfs->pAppData);
    if (!(flags & SQLITE_OPEN_MAIN_DB))
        return real->xOpen(real, name, file, flags, outFlags);
    GatheringFile* f = self(file);
    f->base.pMethods = nullptr;
    f->real = reinterpret_cast<sqlite3_file*>(f + 1);
    f->buffer = static_cast<char*>(std::malloc(kBufferBytes));
    f->offset = 0;
    f->length = 0;
    if (!f->buffer)
        return SQLITE_NOMEM;
    const int rc = real->xOpen(real, name, f->real, flags, outFlags);
    if (rc != SQLITE_OK) {
        std::free(f->buffer);
        return rc;
    }
    f->base.pMethods = &gMethods;
    return SQLITE_OK;
}

void registerVfs() {
    sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
    gVfs = *real;
    gVfs.iVersion = 1; // no shared memory, no memory mapping: the file is this connection's
    gVfs.zName = "qs-coalescing";
    gVfs.pNext = nullptr;
    gVfs.pAppData = real;
    gVfs.szOsFile = static_cast<int>(sizeof(GatheringFile)) + real->szOsFile;
    gVfs.xOpen = xOpen;

    gMethods = sqlite3_io_methods{};
    gMethods.iVersion = 1;
    gMethods.xClose = xClose;
    gMethods.xRead = xRead;
    gMethods.xWrite = xWrite;
    gMethods.xTruncate = xTruncate;
    gMethods.xSync = xSync;
    gMethods.xFileSize = xFileSize;
    gMethods.xLock = xLock;
    gMethods.xUnlock = xUnlock;
    gMethods.xCheckReservedLock = xCheckReservedLock;
    gMethods.xFileControl = xFileControl;
    gMethods.xSectorSize = xSectorSize;
    gMethods.xDeviceCharacteristics = xDeviceCharacteristics;
    sqlite3_vfs_register(&gVfs, 0);
}

} // namespace

const char* CoalescingVfsName() {
    static std::once_flag once;
    std::call_once(once, registerVfs);
    return gVfs.zName;
}

} // namespace qs
