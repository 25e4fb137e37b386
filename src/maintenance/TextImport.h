#pragma once

#include <QByteArray>
#include <QString>

namespace qs {

// The text of a file written elsewhere: UTF-8 when it starts with the byte-order mark (which is
// dropped) or is well-formed UTF-8 throughout, the Windows-1252 code page otherwise.  Every line
// end (CR LF, LF, CR) comes back as the system's CR LF.
QString DecodeImportedText(const QByteArray& bytes);

} // namespace qs
