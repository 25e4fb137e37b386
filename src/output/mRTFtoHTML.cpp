#include "mRTFtoHTML.h"

#include "RtfHtmlScanner.h"
#include "mErrorHandling.h"

namespace qs {

QString RTF2HTML(const QString& strRTF, const QString& strOptions) {
    try {
        return RtfHtmlScanner::Convert(strRTF, strOptions);
    } catch (...) {
        HandleFailure("mRTFtoHTML:RTF2HTML;");
    }
    return QString();
}

} // namespace qs
