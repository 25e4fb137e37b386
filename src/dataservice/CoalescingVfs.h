#pragma once

namespace qs {

// The name of a file layer for the engine that gathers a database file's writes that follow one
// another into large ones, as a plain file copy writes.  A backup writes its pages in order, one
// page per write; gathered, the copy costs one write per 31 pages instead of one per page.  Every
// other operation (reads, size, truncation, sync, locks, close) first writes out what is gathered.
// Meant for a file that only this connection uses; journals and other files pass through.
// Registered with the engine at the first call.
const char* CoalescingVfsName();

} // namespace qs
