#pragma once

namespace qs {

// The application's title, the default title of its message boxes.
inline constexpr const char APP_TITLE[] = "Quillstone";

// Marker texts of the security service: the id of the record GetUser returns for an unknown id or
// a wrong password, and the result of GetForgottenPassword for a wrong answer.
inline constexpr const char USER_NOT_VALID[] = "Q70707";
inline constexpr const char ANSWER_NOT_VALID[] = "707070";

// The text by which the service tells that the database file is missing; compared without regard
// to case and without its final point.
inline constexpr const char DATABASE_NOT_FOUND_TEXT[] =
    "The Quillstone Database does not exist in the specified path";

// The file dialog's filter for database files.
inline constexpr const char FILTER_MDB[] = "MsAccess Files (*.mdb)|*.mdb";

} // namespace qs
