#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

namespace qs::sample {

// A small 32-bit PE image (a DLL with no code) whose one resource is a version block: the fixed
// file version a.b.c.d and one US English string table with these strings.
QByteArray ComponentImage(const quint16 (&fileVersion)[4],
                          const QVector<QPair<QString, QString>>& strings);

} // namespace qs::sample
