#pragma once

#include <QByteArray>
#include <QString>

/// Characters that XML 1.0 forbids. The document's own reader takes them as they are; the parser of
/// the linter refuses them, so it gets others in their place, and gives those back.
namespace qxControlCharacters {

/// The document with a stand-in for each control character, written as such or as a reference, and
/// with U+FFFD for references to what no text can hold. `first` is the place of the first of them,
/// -1 when there is none.
QByteArray replaced(const QByteArray &document, int &first);
/// A text of such a document, as the document's own reader takes it.
QString restored(QString text);

} // namespace qxControlCharacters
