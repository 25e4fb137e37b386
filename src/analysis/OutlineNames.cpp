#include "OutlineNames.h"

#include "QsError.h"

namespace qs::OutlineNames {

namespace {

[[noreturn]] void invalidCall() {
    throw QsError(5, QString::fromLatin1(kAppSource),
                  QStringLiteral("Invalid procedure call or argument"));
}

// Left(text, count) for a count worked out of a search that may have found nothing.
QString leftOf(const QString& text, int count) {
    if (count < 0)
        invalidCall();
    return text.left(count);
}

bool holds(const QString& text, const char* word) {
    return text.contains(QLatin1String(word), Qt::CaseInsensitive);
}

} // namespace

QString ConstantName(const QString& element, bool stripGlobal) {
    QString text = element;
    if (text.startsWith(QLatin1String("\r\n")))
        text.remove(0, 2);
    for (const char* word : {"Private ", "Public ", "Global ", "Const "}) {
        if (!stripGlobal && qstrcmp(word, "Global ") == 0)
            continue;
        if (text.startsWith(QLatin1String(word)))
            text.remove(0, int(qstrlen(word)));
    }
    return leftOf(text, text.indexOf(QLatin1Char(' ')));
}

QString VariableName(const QString& element) {
    const QString rest = element.mid(element.indexOf(QLatin1Char(' ')) + 1);
    const int blank = rest.indexOf(QLatin1Char(' '));
    return blank < 0 ? rest : rest.left(blank);
}

QString TypeOrEnumName(const QString& element, const QString& keyword) {
    // Positions below are those of the text functions, counting from 1.
    const int inner =
        element.indexOf(QLatin1Char(' ') + keyword + QLatin1Char(' '), 0, Qt::CaseInsensitive) + 1;
    const int skip =
        inner > 0 ? inner + 5
                  : element.indexOf(keyword + QLatin1Char(' '), 0, Qt::CaseInsensitive) + 1 + 4;
    QString name = element.mid(skip);
    const int blank = name.indexOf(QLatin1Char(' ')) + 1;
    if (blank > 0)
        name = name.left(blank);
    if (name.contains(QLatin1String("\r\n")))
        name = leftOf(name, name.size() - 3);
    return name;
}

QString DeclareName(const QString& element) {
    const int lib = element.indexOf(QLatin1String(" Lib "), 0, Qt::CaseInsensitive) + 1;
    const QString head = leftOf(element, lib - 1);
    const int blank = head.lastIndexOf(QLatin1Char(' '));
    return blank < 0 ? head : head.mid(blank + 1);
}

QString ProcedureName(const QString& element) {
    const int paren = element.indexOf(QLatin1Char('('));
    if (paren < 0)
        invalidCall();
    const QString head = element.left(paren + 1);
    const int blank = head.lastIndexOf(QLatin1Char(' '));
    if (blank < 0)
        return head;
    const QString name = head.mid(blank + 1);
    return name.left(name.size() - 1);
}

QString PropertyName(const QString& element) {
    QString name = ProcedureName(element);
    if (holds(element, "Property Get"))
        name.prepend(QLatin1String("Get "));
    if (holds(element, "Property Let"))
        name.prepend(QLatin1String("Let "));
    return name;
}

} // namespace qs::OutlineNames
