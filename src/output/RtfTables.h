#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace qs {

// The tables the rich text to HTML converter reads before it scans: the colour and font tables
// of the rich text's header, and the character table of the \'hh escapes.  Each reader is a
// text search over the flat string, not a parse: it reads what the rich text box writes.

// Six hexadecimal digits per \red..\green..\blue entry, the first \red being entry 0; a single
// empty entry when the text has no colour table.
QStringList ReadColourTable(const QString& rtf);

// One font name per \fN entry, found in turn by \f0, \f1, ...; a single empty entry when the
// text has no font table.  The names are views into `rtf`, which must outlive them: names of
// entries that run into each other share their text instead of copying it.
QList<QStringView> ReadFontTable(const QString& rtf);

// The replacement of the character table for the two characters of a \'hh escape, or an empty
// view when the table has no row for them (upper-case digits have none).
QStringView CharacterTableText(QStringView hex);

// The character of the ANSI code page for the hexadecimal text of an escape, read as far as it
// holds hexadecimal digits (none reads as 0).
QChar AnsiCharacterOfHex(QStringView hex);

} // namespace qs
