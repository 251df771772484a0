#include "tests/faults/FaultyVfs.h"

#include <sqlite3.h>

#include <atomic>
#include <iterator>
#include <new>

namespace brivane::faults {

namespace {

/// A file is looked at in two threads while it is opened.
std::atomic<int> calls = 0;
std::atomic<int> failing = 0;
std::atomic<int> fullFrom = 0;
std::atomic<bool> struck = false;

void Plan(int failingCall, int fullFromCall) {
  failing = failingCall;
  fullFrom = fullFromCall;
  calls = 0;
  struck = false;
}

/// What stands before one of SQLite's ways to the disk.
sqlite3_vfs* Disk(sqlite3_vfs* shim) { return static_cast<sqlite3_vfs*>(shim->pAppData); }

int Strike(int code) {
  struck = true;
  return code;
}

/// The code of a failure that is due now, or SQLITE_OK.
int Due(int code) { return ++calls == failing ? Strike(code) : SQLITE_OK; }

/// The same for what takes room on the disk.
int DueForRoom(int code) {
  const int call = ++calls;
  if (call == failing) return Strike(code);
  return fullFrom != 0 && call >= fullFrom ? Strike(SQLITE_FULL) : SQLITE_OK;
}

/// SQLite's file, followed in memory by that of the real disk.
struct File {
  sqlite3_file base;
  sqlite3_file* real;
};

sqlite3_file* Real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->real; }

int Close(sqlite3_file* file) { return Real(file)->pMethods->xClose(Real(file)); }
int Read(sqlite3_file* file, void* to, int size, sqlite3_int64 at) {
  if (const int due = Due(SQLITE_IOERR_READ)) return due;
  return Real(file)->pMethods->xRead(Real(file), to, size, at);
}
int Write(sqlite3_file* file, const void* from, int size, sqlite3_int64 at) {
  if (const int due = DueForRoom(SQLITE_IOERR_WRITE)) return due;
  return Real(file)->pMethods->xWrite(Real(file), from, size, at);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  if (const int due = Due(SQLITE_IOERR_TRUNCATE)) return due;
  return Real(file)->pMethods->xTruncate(Real(file), size);
}
int Sync(sqlite3_file*, int) { return Due(SQLITE_IOERR_FSYNC); }
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
  if (const int due = Due(SQLITE_IOERR_FSTAT)) return due;
  return Real(file)->pMethods->xFileSize(Real(file), size);
}
int Lock(sqlite3_file* file, int level) {
  if (const int due = Due(SQLITE_IOERR_LOCK)) return due;
  return Real(file)->pMethods->xLock(Real(file), level);
}
int Unlock(sqlite3_file* file, int level) { return Real(file)->pMethods->xUnlock(Real(file), level); }
int CheckReservedLock(sqlite3_file* file, int* reserved) {
  if (const int due = Due(SQLITE_IOERR_CHECKRESERVEDLOCK)) return due;
  return Real(file)->pMethods->xCheckReservedLock(Real(file), reserved);
}
int FileControl(sqlite3_file* file, int what, void* with) {
  return Real(file)->pMethods->xFileControl(Real(file), what, with);
}
int SectorSize(sqlite3_file* file) { return Real(file)->pMethods->xSectorSize(Real(file)); }
int DeviceCharacteristics(sqlite3_file* file) { return Real(file)->pMethods->xDeviceCharacteristics(Real(file)); }
int ShmMap(sqlite3_file* file, int page, int size, int extend, void volatile** memory) {
  if (const int due = Due(SQLITE_IOERR_SHMMAP)) return due;
  return Real(file)->pMethods->xShmMap(Real(file), page, size, extend, memory);
}
int ShmLock(sqlite3_file* file, int offset, int count, int flags) {
  return Real(file)->pMethods->xShmLock(Real(file), offset, count, flags);
}
void ShmBarrier(sqlite3_file* file) { Real(file)->pMethods->xShmBarrier(Real(file)); }
int ShmUnmap(sqlite3_file* file, int remove) { return Real(file)->pMethods->xShmUnmap(Real(file), remove); }

const sqlite3_io_methods kMethods{
    .iVersion = 2,
    .xClose = Close,
    .xRead = Read,
    .xWrite = Write,
    .xTruncate = Truncate,
    .xSync = Sync,
    .xFileSize = FileSize,
    .xLock = Lock,
    .xUnlock = Unlock,
    .xCheckReservedLock = CheckReservedLock,
    .xFileControl = FileControl,
    .xSectorSize = SectorSize,
    .xDeviceCharacteristics = DeviceCharacteristics,
    .xShmMap = ShmMap,
    .xShmLock = ShmLock,
    .xShmBarrier = ShmBarrier,
    .xShmUnmap = ShmUnmap,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int Open(sqlite3_vfs* shim, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags) {
  auto* const own = new (file) File{{nullptr}, reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1)};
  if (const int due = Due(SQLITE_CANTOPEN)) return due;
  const int opened = Disk(shim)->xOpen(Disk(shim), name, own->real, flags, outFlags);
  if (own->real->pMethods != nullptr) own->base.pMethods = &kMethods;
  return opened;
}
int Delete(sqlite3_vfs* shim, const char* name, int syncFolder) {
  if (const int due = Due(SQLITE_IOERR_DELETE)) return due;
  return Disk(shim)->xDelete(Disk(shim), name, syncFolder);
}
int Access(sqlite3_vfs* shim, const char* name, int flags, int* result) {
  if (const int due = Due(SQLITE_IOERR_ACCESS)) return due;
  return Disk(shim)->xAccess(Disk(shim), name, flags, result);
}

/// The default way, and the one without locks of its own by which a loan file is opened to work in.
constexpr const char* kNames[] = {"unix", "unix-none"};
sqlite3_vfs shims[std::size(kNames)];

}  // namespace

FaultyVfs::FaultyVfs() {
  for (std::size_t n = 0; n < std::size(kNames); ++n) {
    sqlite3_vfs* const disk = sqlite3_vfs_find(kNames[n]);
    sqlite3_vfs& shim = shims[n];
    shim = *disk;
    shim.pNext = nullptr;
    shim.pAppData = disk;
    shim.szOsFile = static_cast<int>(sizeof(File)) + disk->szOsFile;
    shim.xOpen = Open;
    shim.xDelete = Delete;
    shim.xAccess = Access;
    // Of two with one name the first in the list is found, and a new one comes before the others.
    sqlite3_vfs_register(&shim, n == 0 ? 1 : 0);
  }
  Plan(0, 0);
}

FaultyVfs::~FaultyVfs() {
  for (sqlite3_vfs& shim : shims) sqlite3_vfs_unregister(&shim);
  sqlite3_vfs_register(Disk(&shims[0]), 1);
}

void FaultyVfs::FailAt(int nth) { Plan(nth, 0); }

void FaultyVfs::FullFrom(int nth) { Plan(0, nth); }

int FaultyVfs::Calls() const { return calls; }

bool FaultyVfs::Struck() const { return struck; }

}  // namespace brivane::faults
