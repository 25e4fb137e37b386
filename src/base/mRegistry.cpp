#include "mRegistry.h"

#include "VbStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QSaveFile>
#include <QStandardPaths>

namespace qs {

namespace {

// The platform's answers.
constexpr long kSuccess = 0;
constexpr long kNotFound = 2;
constexpr long kInvalidHandle = 6;

// Characters of the read buffer, terminator included.
constexpr int kBufferChars = 2048;

const char* const kKeysField = "keys";
const char* const kTypeField = "type";
const char* const kDataField = "data";

QMutex gLock;
QHash<RegKeyHandle, QString> gOpenKeys;
RegKeyHandle gLastHandle = 0x100;

QString rootName(long root) {
    switch (root) {
    case HKEY_CLASSES_ROOT:
        return QStringLiteral("HKEY_CLASSES_ROOT");
    case HKEY_CURRENT_USER:
        return QStringLiteral("HKEY_CURRENT_USER");
    case HKEY_LOCAL_MACHINE:
        return QStringLiteral("HKEY_LOCAL_MACHINE");
    default:
        return QString();
    }
}

struct Store {
    QJsonObject keys;
    bool readable = true; // false when a file stands there that could not be read
};

Store loadStore() {
    Store store;
    QFile file(RegStoreFile());
    if (!file.exists())
        return store;
    if (!file.open(QIODevice::ReadOnly)) {
        store.readable = false;
        return store;
    }
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject() ||
        !doc.object().value(QLatin1String(kKeysField)).isObject()) {
        store.readable = false;
        return store;
    }
    store.keys = doc.object().value(QLatin1String(kKeysField)).toObject();
    return store;
}

// Failure to write is silent: a locked store keeps nothing.
void saveStore(const Store& store) {
    const QString path = RegStoreFile();
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return;
    QJsonObject top;
    top.insert(QStringLiteral("format"), QStringLiteral("Quillstone key store 1"));
    top.insert(QLatin1String(kKeysField), store.keys);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument(top).toJson(QJsonDocument::Indented));
    file.commit();
}

// The stored spelling of `name` in `object`, matched without regard to case; empty when absent.
QString findName(const QJsonObject& object, const QString& name, bool* found) {
    *found = false;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (it.key().compare(name, Qt::CaseInsensitive) == 0) {
            *found = true;
            return it.key();
        }
    }
    return QString();
}

QString handleKey(RegKeyHandle handle, bool* open) {
    QMutexLocker lock(&gLock);
    const auto it = gOpenKeys.constFind(handle);
    *open = it != gOpenKeys.constEnd();
    return *open ? it.value() : QString();
}

// RegQueryValueEx: the type and stored data of a value.
long queryValue(RegKeyHandle handle, const QString& valueName, int* type, QJsonValue* data) {
    bool open = false;
    const QString keyPath = handleKey(handle, &open);
    if (!open)
        return kInvalidHandle;
    const Store store = loadStore();
    bool found = false;
    const QString key = findName(store.keys, keyPath, &found);
    if (!found)
        return kNotFound;
    const QJsonObject values = store.keys.value(key).toObject();
    const QString name = findName(values, valueName, &found);
    if (!found)
        return kNotFound;
    const QJsonObject value = values.value(name).toObject();
    *type = value.value(QLatin1String(kTypeField)).toInt(0);
    *data = value.value(QLatin1String(kDataField));
    return kSuccess;
}

// RegSetValueEx: replaces the value, keeping the spelling of a name that already stands.
long storeValue(RegKeyHandle handle, const QString& valueName, int type, const QJsonValue& data) {
    bool open = false;
    const QString keyPath = handleKey(handle, &open);
    if (!open)
        return kInvalidHandle;
    Store store = loadStore();
    bool found = false;
    QString key = findName(store.keys, keyPath, &found);
    if (!found)
        key = keyPath;
    QJsonObject values = store.keys.value(key).toObject();
    QString name = findName(values, valueName, &found);
    if (!found)
        name = valueName;
    QJsonObject value;
    value.insert(QLatin1String(kTypeField), type);
    value.insert(QLatin1String(kDataField), data);
    values.insert(name, value);
    store.keys.insert(key, values);
    saveStore(store);
    return kSuccess;
}

// What a string value gives through the fixed buffer.
QString readString(const QString& stored) {
    const QString text = stored.left(kBufferChars - 1);
    const int nul = text.indexOf(QChar(0));
    return nul >= 0 ? text.left(nul) : VbTrim(text);
}

QVariant readByType(int type, const QJsonValue& data) {
    switch (type) {
    case REG_SZ:
        return readString(data.toString());
    case REG_BINARY:
        return QByteArray::fromHex(data.toString().toLatin1());
    case REG_DWORD:
        return static_cast<qint32>(static_cast<quint32>(data.toInteger()));
    default:
        return QVariant();
    }
}

bool isNullVariant(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<std::nullptr_t>();
}

} // namespace

QString RegStoreFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tarnwick/Quillstone System.json");
}

RegKeyHandle OpenRegKey(long root, const QString& keyText, long /*access*/) {
    const QString rootText = rootName(root);
    if (rootText.isEmpty())
        return 0;
    const QString keyPath = keyText.isEmpty() ? rootText : rootText + QLatin1Char('\\') + keyText;

    Store store = loadStore();
    bool found = false;
    findName(store.keys, keyPath, &found);
    // A store that could not be read is left for a value write to replace.
    if (!found && store.readable) {
        store.keys.insert(keyPath, QJsonObject());
        saveStore(store);
    }

    QMutexLocker lock(&gLock);
    const RegKeyHandle handle = ++gLastHandle;
    gOpenKeys.insert(handle, keyPath);
    return handle;
}

void CloseRegKey(RegKeyHandle handle) {
    QMutexLocker lock(&gLock);
    gOpenKeys.remove(handle);
}

QVariant GetValue(long root, const QString& keyText, const QString& valueName,
                  const QVariant& defaultValue, long access) {
    const RegKeyHandle handle = OpenRegKey(root, keyText, access);
    if (handle == 0)
        return QVariant();

    QVariant result;
    int type = 0;
    QJsonValue data;
    const long rc = queryValue(handle, valueName, &type, &data);
    if (rc == kSuccess) {
        if (valueName.isEmpty()) {
            // The key's default value is read whole; the platform's terminator is what is cut.
            if (type == REG_SZ)
                result = data.toString();
        } else {
            result = readByType(type, data);
        }
    } else if (rc == kNotFound && defaultValue.isValid()) {
        result = defaultValue;
        SetValue(root, keyText, valueName, defaultValue, access);
    }

    CloseRegKey(handle);
    return result;
}

void SetValue(long root, const QString& keyText, const QString& valueName, const QVariant& value,
              long access) {
    if (isNullVariant(value))
        return;
    const RegKeyHandle handle = OpenRegKey(root, keyText, access);
    if (handle == 0)
        return;

    if (valueName.isEmpty()) {
        storeValue(handle, valueName, REG_SZ, value.toString());
    } else {
        switch (value.metaType().id()) {
        case QMetaType::Short:
        case QMetaType::Int:
            storeValue(handle, valueName, REG_DWORD, value.toInt());
            break;
        case QMetaType::QString:
            storeValue(handle, valueName, REG_SZ, value.toString());
            break;
        case QMetaType::QByteArray:
            storeValue(handle, valueName, REG_BINARY,
                       QString::fromLatin1(value.toByteArray().toHex()));
            break;
        default:
            // Booleans and every other type are not written.
            break;
        }
    }

    CloseRegKey(handle);
}

QVariant GetRegSetting(const QString& keyText, const QString& valueName,
                       const QVariant& defaultValue, long access) {
    return GetValue(HKEY_LOCAL_MACHINE, keyText, valueName, defaultValue, access);
}

void SaveRegSetting(const QString& keyText, const QString& valueName, const QVariant& value,
                    long access) {
    SetValue(HKEY_LOCAL_MACHINE, keyText, valueName, value, access);
}

} // namespace qs
