#include "ClipboardFormats.h"

#include <QHash>

namespace qs {

namespace {
QHash<QString, int>& formats() {
    static QHash<QString, int> registered;
    return registered;
}
} // namespace

int RegisterClipboardFormat(const QString& name) {
    QHash<QString, int>& all = formats();
    const auto found = all.constFind(name);
    if (found != all.constEnd())
        return *found;
    const int number = 0xC000 + static_cast<int>(all.size());
    all.insert(name, number);
    return number;
}

QString ClipboardFormatMime(int format) {
    const QString name = formats().key(format);
    if (name.isEmpty())
        return QString();
    return QStringLiteral("application/x-qt-windows-mime;value=\"%1\"").arg(name);
}

} // namespace qs
