#pragma once

#include <QString>

namespace qs::sample {

// What the sample holds, and how to log in to it.
struct SampleReport {
    QString path;
    QString userId;
    QString password;
    int categories = 0; // the categories made here, "Visual Basic" of a new library included
    int folders = 0;
    int codeItems = 0;
    int storedFiles = 0;
    int revisions = 0;
};

// A small library a newcomer can open: categories (one of them "Visual Basic"), nested
// folders, snippets, tips, class and general modules with their revision histories, an article
// and a component stored as files, a first user (administrator) and an author.  Everything goes
// in through the data service, as the program itself would write it.
class SampleLibrary {
public:
    static constexpr const char kUserId[] = "admin";
    static constexpr const char kPassword[] = "quillstone";

    // Makes the library at path, and beside it the folder "Sample Files" with the article and
    // the component that are stored in it.  An existing file at path is replaced when `replace`
    // is set and refused otherwise (error 58, "File already exists").
    static SampleReport Build(const QString& path, bool replace);
};

} // namespace qs::sample
