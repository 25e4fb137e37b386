#include "TextImport.h"

#include "Cp1252.h"
#include "LineEnds.h"

#include <QStringDecoder>

namespace qs {

QString DecodeImportedText(const QByteArray& bytes) {
    static const QByteArray kBom("\xEF\xBB\xBF");
    QString text;
    if (bytes.startsWith(kBom)) {
        text = QString::fromUtf8(QByteArrayView(bytes).sliced(kBom.size()));
    } else {
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        text = utf8.decode(bytes);
        // A byte the encoding refuses means the file was written in the ANSI code page.
        if (utf8.hasError())
            text = FromCp1252(bytes);
    }
    return ToCrLf(text);
}

} // namespace qs
