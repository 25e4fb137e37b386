#include "cFileInfo.h"

#include "QsError.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace qs {

namespace {

bool isShortNameChar(QChar c) {
    if (c.unicode() >= 0x80)
        return false;
    if (c.isLetterOrNumber())
        return true;
    return QStringLiteral("!#$%&'()-@^_`{}~").contains(c);
}

QString mapShort(const QString& part) {
    QString out;
    for (QChar c : part)
        out.append(isShortNameChar(c) ? c.toUpper() : QLatin1Char('_'));
    return out;
}

bool fitsShortForm(const QString& name) {
    const int dot = name.indexOf(QLatin1Char('.'));
    if (dot != name.lastIndexOf(QLatin1Char('.')))
        return false;
    const QString base = dot < 0 ? name : name.left(dot);
    const QString ext = dot < 0 ? QString() : name.mid(dot + 1);
    if (base.isEmpty() || base.size() > 8 || ext.size() > 3 || (dot >= 0 && ext.isEmpty()))
        return false;
    for (QChar c : base + ext) {
        if (!isShortNameChar(c))
            return false;
    }
    return true;
}

// Linux keeps a compression flag for files of some file systems (btrfs, ext4 with e2compr).
bool compressedFlag(const QString& path) {
#ifdef Q_OS_LINUX
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK);
    if (fd < 0)
        return false;
    int flags = 0;
    const bool ok = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    ::close(fd);
    return ok && (flags & FS_COMPR_FL) != 0;
#else
    Q_UNUSED(path);
    return false;
#endif
}

QByteArray toPng(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

} // namespace

cFileInfo cFileInfo::Capture(const QString& path) {
    const QFileInfo fi(path);
    if (path.isEmpty() || !fi.exists() || fi.isDir())
        throw QsError(53, QStringLiteral("cFileInfo:Capture;"),
                      QStringLiteral("File not found: %1").arg(path));
    cFileInfo info;
    info.mFullPath = fi.absoluteFilePath();
    info.mFileName = fi.fileName();
    info.mDosName = MakeDosName(fi.fileName());
    info.mTypeName = TypeNameOf(info.mFileName);
    info.mSize = fi.size();
    info.mCreated = fi.birthTime().isValid() ? fi.birthTime() : fi.lastModified();
    info.mReadOnly = !(fi.permissions() & QFileDevice::WriteOwner);
    info.mHidden = fi.fileName().startsWith(QLatin1Char('.'));
    // System, archive and temporary are Windows attributes with no counterpart here.
    info.mCompressed = compressedFlag(info.mFullPath);
    info.mIconPng = toPng(DrawTypeIcon(fi.suffix()));
    info.mVersion = cFileVersionInfo::FromFile(info.mFullPath);
    return info;
}

cFileInfo cFileInfo::FromFacts(const SourceFileFacts& facts) {
    cFileInfo info;
    info.mFileName = facts.FileName;
    info.mFullPath = facts.FullPath;
    info.mDosName = facts.DosName;
    info.mTypeName = facts.FileName.isEmpty() ? QString() : TypeNameOf(facts.FileName);
    info.mSize = facts.Size;
    info.mCreated = facts.DateCreated;
    info.mReadOnly = facts.ReadOnly;
    info.mHidden = facts.Hidden;
    info.mSystem = facts.System;
    info.mArchive = facts.Archive;
    info.mTemporary = facts.Temporary;
    info.mCompressed = facts.Compressed;
    info.mIconPng = facts.IconPng;
    info.mVersion = cFileVersionInfo::FromJson(facts.VersionInfoJson);
    return info;
}

SourceFileFacts cFileInfo::ToFacts() const {
    SourceFileFacts facts;
    facts.FileName = mFileName;
    facts.FullPath = mFullPath;
    facts.DosName = mDosName;
    facts.FileTypeName = QFileInfo(mFileName).suffix();
    facts.Size = mSize;
    facts.DateCreated = mCreated;
    facts.ReadOnly = mReadOnly;
    facts.Hidden = mHidden;
    facts.System = mSystem;
    facts.Archive = mArchive;
    facts.Temporary = mTemporary;
    facts.Compressed = mCompressed;
    facts.IconPng = mIconPng;
    facts.VersionInfoJson = mVersion.ToJson();
    return facts;
}

QImage cFileInfo::IconHandle() const {
    QImage image;
    if (!mIconPng.isEmpty())
        image.loadFromData(mIconPng, "PNG");
    return image;
}

QString cFileInfo::FormatSize(qint64 size) {
    const QLocale us(QLocale::English, QLocale::UnitedStates);
    const QString bytes = us.toString(size) + QStringLiteral(" bytes");
    if (size < 1024)
        return bytes;
    const char* const units[] = {"KB", "MB", "GB", "TB", "PB"};
    double value = double(size) / 1024.0;
    int unit = 0;
    while (value >= 1024.0 && unit < 4) {
        value /= 1024.0;
        ++unit;
    }
    // Three significant digits, cut rather than rounded, as the file properties show them.
    const int decimals = value < 10 ? 2 : (value < 100 ? 1 : 0);
    const double scale = std::pow(10.0, decimals);
    const double cut = std::floor(value * scale) / scale;
    return QStringLiteral("%1 %2 (%3)")
        .arg(QString::number(cut, 'f', decimals), QString::fromLatin1(units[unit]), bytes);
}

QString cFileInfo::FormatDate(const QDateTime& value) {
    if (!value.isValid())
        return {};
    return QLocale::c().toString(value.toLocalTime(),
                                 QStringLiteral("dddd, MMMM dd, yyyy, h:mm:ss AP"));
}

QString cFileInfo::MakeDosName(const QString& fileName) {
    if (fitsShortForm(fileName))
        return fileName.toUpper();
    QString name = fileName;
    name.remove(QLatin1Char(' '));
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    QString base = dot < 0 ? name : name.left(dot);
    const QString ext = dot < 0 ? QString() : name.mid(dot + 1);
    base.remove(QLatin1Char('.'));
    QString shortName = mapShort(base).left(6);
    if (shortName.isEmpty())
        shortName = QStringLiteral("_");
    shortName += QStringLiteral("~1");
    const QString shortExt = mapShort(ext).left(3);
    if (!shortExt.isEmpty())
        shortName += QLatin1Char('.') + shortExt;
    return shortName;
}

QString cFileInfo::TypeNameOf(const QString& fileName) {
    const QString suffix = QFileInfo(fileName).suffix();
    const QMimeType mime = QMimeDatabase().mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    if (mime.isValid() && !mime.isDefault() && !mime.comment().isEmpty())
        return mime.comment();
    if (suffix.isEmpty())
        return QStringLiteral("File");
    return suffix.toUpper() + QStringLiteral(" File");
}

QImage cFileInfo::DrawTypeIcon(const QString& extension) {
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QString label = extension.left(4).toUpper();
    // A stable colour per extension, so the same type always looks the same.
    const QColor band = QColor::fromHsv(int(qHash(label, 7) % 360), 160, 190);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath page;
    page.moveTo(5.5, 1.5);
    page.lineTo(20.5, 1.5);
    page.lineTo(27.5, 8.5);
    page.lineTo(27.5, 30.5);
    page.lineTo(5.5, 30.5);
    page.closeSubpath();
    p.setPen(QPen(QColor(90, 90, 90), 1));
    p.setBrush(Qt::white);
    p.drawPath(page);
    QPainterPath corner;
    corner.moveTo(20.5, 1.5);
    corner.lineTo(20.5, 8.5);
    corner.lineTo(27.5, 8.5);
    corner.closeSubpath();
    p.setBrush(QColor(215, 215, 215));
    p.drawPath(corner);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(160, 160, 160));
    for (int y = 5; y <= 13; y += 4)
        p.drawRect(QRectF(8, y, y < 9 ? 10 : 16, 1.5));
    p.setBrush(band);
    p.drawRect(QRectF(2, 17, 28, 10));
    // Text needs the font database, which only a GUI application has.
    if (!label.isEmpty() && qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        QFont font(QStringLiteral("Sans Serif"));
        font.setPixelSize(label.size() > 3 ? 7 : 8);
        font.setBold(true);
        p.setFont(font);
        p.setPen(Qt::white);
        p.drawText(QRectF(2, 17, 28, 10), Qt::AlignCenter, label);
    }
    p.end();
    return image;
}

} // namespace qs
