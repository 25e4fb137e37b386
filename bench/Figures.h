#pragma once

#include "Bench.h"

namespace qs::bench {

// One function per figure; each prints its own line.  A new figure is a new function here and
// one line in main.
void FigureGetItems(const BenchContext& context);
void FigureGetSourceCode(const BenchContext& context);
// name like "search_rare_any"; the filtered variant narrows to the first type node.
void FigureSearch(const BenchContext& context, const QString& name, int mode, const QString& text,
                  bool filtered);
void FigureBackup(const BenchContext& context);
void FigureCompact(const BenchContext& context);
void FigureFileSize(const BenchContext& context);
// A stored file of `megabytes` MB added with LoadFile and Save, then written back with
// SaveToDisk: the time of each, and how far the peak memory rose above the start (Linux).
void FigureStoredFile(const BenchContext& context, int megabytes);
// A module of about 1 MB split into its members by cCodeParser, beside a plain split of the same
// text into lines.
void FigureParseModule(const BenchContext& context);
// About `megabytes` MB of the code pane's rich text converted to HTML, beside a plain scan that
// drops the control words of the same text.
void FigureRtfToHtml(const BenchContext& context, int megabytes);
// The search tab's hit tree filled by the main window offscreen, for a type node whose every
// item is a hit (10,000 at 100,000 items), beside the plain scan of the same answer.
void FigureSearchFill(const BenchContext& context);
// An API file of `entries` declarations (constants, Declares and types as real files mix them)
// loaded into the API viewer through its Load command, beside reading the file into lines.
void FigureApiLoad(const BenchContext& context, const QString& folder, int entries);
// The API viewer's search as you type over a list of `entries` names: each key from its press
// to the list repainted, beside finding the first prefix match in a plain list.
void FigureApiTypeAhead(const BenchContext& context, const QString& folder, int entries);

} // namespace qs::bench
