#pragma once

#include <QString>

namespace qs {

// The system's text uses CR LF; Qt's text widgets use LF.  These convert at the control's edge.

// Any line end (CR LF, lone LF, lone CR) becomes LF.
QString ToLf(const QString& text);
// Any line end (CR LF, lone LF, lone CR) becomes CR LF.
QString ToCrLf(const QString& text);

} // namespace qs
