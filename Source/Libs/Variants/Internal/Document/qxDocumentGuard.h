#pragma once

#include <QString>

#include <string_view>

/// Where and why a document was refused.
struct qxDocumentError {
    QString message;
    int line = 0; ///< from 1 on, as is the column
    int column = 0;
};

/// Looks at the bytes of a document before they are parsed, in one pass.
namespace qxDocumentGuard {

/// Whether a parser can take the document without harm. Refused are elements nested too deep (the
/// parser goes down one call per level) or with very many attributes, declared entities (a few
/// hundred bytes can stand for gigabytes) and encodings in which markup is not spelled in ASCII
/// (this look would not see it).
/// Whether a document is well-formed is left to the parser.
bool admits(std::string_view document, qxDocumentError &error);

} // namespace qxDocumentGuard
