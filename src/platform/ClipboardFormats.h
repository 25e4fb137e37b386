#pragma once

#include <QString>

namespace qs {

// Private clipboard formats registered by name in this process, numbered as the platform
// numbers its own (from 0xC000); the same name always gets the same number.
int RegisterClipboardFormat(const QString& name);
// The MIME type that carries a registered format in drag data: the one a Qt program on the
// original platform uses for a format registered under that name.  Empty for a number that was
// never registered.
QString ClipboardFormatMime(int format);

} // namespace qs
