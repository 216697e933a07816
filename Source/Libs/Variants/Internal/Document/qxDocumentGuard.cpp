#include "Internal/Document/qxDocumentGuard.h"

#include <QTextCodec>

#include <algorithm>
#include <utility>

namespace {

/// A document of ours is nested four deep. Parsing, printing and releasing take one call per level:
/// the stack holds some thousands of them.
constexpr int DeepestNesting = 256;

/// An element of ours has 22 at most. Parsers compare the name of each with all before it.
constexpr int MostAttributes = 1000;

constexpr std::size_t None = std::string_view::npos;

/// Whether in the encoding of that number every ASCII byte stands for its character, wherever it
/// is. The numbers are those of IANA's list of character sets.
bool keepsAscii(int encoding)
{
    // ASCII and ISO 8859, UTF-8, ISO 8859, DOS, Macintosh, KOI8, Windows
    const std::pair<int, int> ranges[] = {{3, 13},      {106, 106},   {109, 112},
                                          {2009, 2009}, {2027, 2027}, {2084, 2084},
                                          {2086, 2086}, {2088, 2088}, {2250, 2259}};
    return std::any_of(std::begin(ranges), std::end(ranges), [encoding](const auto &each) {
        return encoding >= each.first && encoding <= each.second;
    });
}

/// Goes over the markup of a document, as far as it is well-formed.
class Scan {
public:
    explicit Scan(std::string_view document) : m_text(document) {}

    /// Goes to the end, or to the first place that is refused.
    void run();
    bool hasFailed() const { return !m_message.isEmpty(); }
    qxDocumentError error() const;

private:
    bool isAt(std::string_view word) const { return m_text.substr(m_at, word.size()) == word; }
    bool fail(const char *message);
    bool passUntil(std::string_view end, std::size_t from);
    bool passCommentOrInstruction();
    bool passMarkup();
    bool passTag();
    bool passDeclaration();
    bool checkEncoding();

    const std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
    QString m_message;
};

void Scan::run()
{
    if (!checkEncoding())
        return;
    do {
        m_at = m_text.find('<', m_at);
    } while (m_at != None && passMarkup());
}

bool Scan::fail(const char *message)
{
    m_message = QString::fromLatin1(message);
    return false;
}

/// Goes behind the next `end`; false when there is none, which the parser will find out.
bool Scan::passUntil(std::string_view end, std::size_t from)
{
    const std::size_t found = m_text.find(end, m_at + from);
    m_at = found == None ? m_text.size() : found + end.size();
    return found != None;
}

bool Scan::passCommentOrInstruction()
{
    return isAt("<!--") ? passUntil("-->", 4) : passUntil("?>", 2);
}

bool Scan::passMarkup()
{
    if (isAt("<!--") || isAt("<?"))
        return passCommentOrInstruction();
    if (isAt("<![CDATA["))
        return passUntil("]]>", 9);
    if (isAt("<!"))
        return passDeclaration();
    if (isAt("</")) {
        --m_depth;
        return passUntil(">", 2);
    }
    return passTag();
}

bool Scan::passTag()
{
    if (m_depth == DeepestNesting)
        return fail("elements are nested too deep");
    int attributes = 0;
    for (++m_at; m_at < m_text.size(); ++m_at) {
        const char each = m_text[m_at];
        if (each == '>')
            break;
        if (each != '"' && each != '\'')
            continue;
        if (++attributes > MostAttributes)
            return fail("an element has too many attributes");
        m_at = std::min(m_text.find(each, m_at + 1), m_text.size() - 1);
    }
    if (m_at >= m_text.size())
        return false;
    if (m_text[m_at - 1] != '/')
        ++m_depth;
    return true;
}

bool Scan::passDeclaration()
{
    bool isInside = false; // between the brackets of a document type
    for (++m_at; m_at < m_text.size(); ++m_at) {
        const char each = m_text[m_at];
        if (each == '>' && !isInside)
            return true;
        if (each == '[' || each == ']')
            isInside = each == '[';
        if (each == '"' || each == '\'')
            m_at = std::min(m_text.find(each, m_at + 1), m_text.size() - 1);
        if (isAt("<!ENTITY"))
            return fail("entity declarations are not allowed");
        if ((isAt("<!--") || isAt("<?")) && passCommentOrInstruction())
            --m_at;
    }
    return false;
}

/// The parser follows an encoding that the document names, so it has to be one that we can look at.
bool Scan::checkEncoding()
{
    const bool hasMark = isAt("\xEF\xBB\xBF");
    if (m_text.substr(hasMark ? 3 : 0, 5) != "<?xml")
        return true;
    const std::string_view declaration = m_text.substr(0, m_text.find('>'));
    const std::size_t word = declaration.find("encoding");
    const std::size_t quote = declaration.find_first_of("\"'", std::min(word, declaration.size()));
    if (quote == None)
        return true;
    const std::string_view found = declaration.substr(quote + 1);
    const std::string_view name = found.substr(0, found.find_first_of("\"'"));
    // The parser knows many spellings, and takes what it does not know for UTF-8.
    const QTextCodec *const codec =
        QTextCodec::codecForName(QByteArray(name.data(), int(name.size())));
    return !codec || keepsAscii(codec->mibEnum()) || fail("the encoding is not supported");
}

qxDocumentError Scan::error() const
{
    const std::string_view before = m_text.substr(0, m_at);
    const std::size_t lineEnd = before.rfind('\n');
    const std::string_view inLine = before.substr(lineEnd == None ? 0 : lineEnd + 1);
    const int line = 1 + int(std::count(before.begin(), before.end(), '\n'));
    return {m_message, line, 1 + QString::fromUtf8(inLine.data(), int(inLine.size())).size()};
}

} // namespace

namespace qxDocumentGuard {

bool admits(std::string_view document, qxDocumentError &error)
{
    Scan scan(document);
    scan.run();
    if (scan.hasFailed())
        error = scan.error();
    return !scan.hasFailed();
}

} // namespace qxDocumentGuard
