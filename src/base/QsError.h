#pragma once

#include <QString>
#include <exception>

namespace qs {

// The one error type of the system: what a raised error carries is its number, its source and its
// description.  Sources concatenate as the error travels outward ("cLibraryService..." followed by
// the procedure literal of the caller), so `source` is mutable.
class QsError : public std::exception {
public:
    QsError(long number, QString source, QString description);

    long number() const { return mNumber; }
    const QString& source() const { return mSource; }
    const QString& description() const { return mDescription; }

    // Appends a procedure literal to the source, as a handler that passes the error on does.
    void appendSource(const QString& literal);

    const char* what() const noexcept override;

private:
    long mNumber;
    QString mSource;
    QString mDescription;
    mutable QByteArray mWhat;
};

// The program's own run-time errors carry this source.
inline constexpr const char* kAppSource = "Quillstone";

} // namespace qs
