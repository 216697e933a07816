#include "Rename/qxScriptLiterals.h"

#include "qxText.h"

#include <algorithm>
#include <iterator>

namespace {

struct Parameter {
    const char *keyword;
    qxScriptNamed named;
};

/// A function, or a method of a handle, that scripts call with names.
struct Word {
    const char *name;
    bool isMethod;
    Parameter parameters[2];
};

using Named = qxScriptNamed;

/// The words of module, host and program, with their arguments in order.
constexpr Word words[] = {
    {"selectVariantSet", false, {{"name", Named::Set}, {"excludeViewpoint", Named::Other}}},
    {"activateCapturedVariantSet", false, {{"name", Named::Set}, {"", Named::Nothing}}},
    {"createAndCaptureVariantSet",
     false,
     {{"variantName", Named::Set}, {"groupName", Named::Group}}},
    {"findVariantSet", false, {{"name", Named::Set}, {"", Named::Nothing}}},
    {"createVariantSet", false, {{"name", Named::Set}, {"group", Named::Group}}},
    {"removeVariantSet", false, {{"name", Named::Set}, {"", Named::Nothing}}},
    {"getVariantSets", false, {{"group", Named::Group}, {"", Named::Nothing}}},
    {"getVariantSetStates", false, {{"name", Named::Set}, {"", Named::Nothing}}},
    {"getVariantStates", false, {{"kind", Named::Other}, {"name", Named::Variant}}},
    {"findNode", false, {{"name", Named::Node}, {"", Named::Nothing}}},
    {"findNodePath", false, {{"path", Named::Path}, {"", Named::Nothing}}},
    {"findMaterial", false, {{"name", Named::Material}, {"", Named::Nothing}}},
    {"addGeometry", true, {{"node", Named::Nothing}, {"state", Named::NodeState}}},
    {"addMaterial", true, {{"material", Named::Nothing}, {"state", Named::MaterialState}}},
    {"addLight", true, {{"light", Named::Nothing}, {"state", Named::LightState}}},
    {"addView", true, {{"viewpoint", Named::Viewpoint}, {"", Named::Nothing}}},
};

struct Token {
    enum Sort { Name, Text, Sign };

    Sort sort;
    int begin;
    int end;
    bool isPlain; ///< of a text: what is between the quotes is what it stands for
};

/// Takes a source apart as far as texts and calls need it.
class Scanner {
public:
    explicit Scanner(const QString &script) : m_script(script) {}

    std::vector<Token> tokens();

private:
    bool isAt(int at, char sign) const
    {
        return at < m_script.size() && m_script[at] == QLatin1Char(sign);
    }
    bool isWordAt(int at) const
    {
        return at < m_script.size()
            && (m_script[at].isLetterOrNumber() || m_script[at] == QLatin1Char('_')
                || m_script[at].isMark() || m_script[at].isSurrogate());
    }
    bool isQuoteAt(int at) const { return isAt(at, '"') || isAt(at, '\''); }
    void takeText(int begin, int quote);

    const QString &m_script;
    std::vector<Token> m_tokens;
    int m_at = 0;
};

/// A text that begins with a prefix at `begin` and its first quote at `quote`.
void Scanner::takeText(int begin, int quote)
{
    const QString prefix = m_script.mid(begin, quote - begin).toLower();
    const QChar mark = m_script[quote];
    const QString three(3, mark);
    const QString end = m_script.mid(quote, 3) == three ? three : QString(mark);
    const bool isRaw = prefix.contains(QLatin1Char('r'));
    bool hasEscapes = false;
    m_at = quote + end.size();
    while (m_at < m_script.size() && m_script.mid(m_at, end.size()) != end) {
        if (end.size() == 1 && isAt(m_at, '\n'))
            break;
        hasEscapes = hasEscapes || isAt(m_at, '\\');
        m_at += isAt(m_at, '\\') ? 2 : 1;
    }
    const bool isClosed = m_script.mid(m_at, end.size()) == end;
    m_at = std::min(m_at + (isClosed ? end.size() : 0), m_script.size());
    const bool isText = prefix.isEmpty() || prefix == QLatin1String("u")
        || prefix == QLatin1String("r") || prefix == QLatin1String("ur");
    m_tokens.push_back({Token::Text, begin, m_at, isClosed && isText && (isRaw || !hasEscapes)});
}

std::vector<Token> Scanner::tokens()
{
    while (m_at < m_script.size()) {
        const int begin = m_at;
        if (m_script[m_at].isSpace() || (isAt(m_at, '\\') && isAt(m_at + 1, '\n'))) {
            m_at += m_script[m_at].isSpace() ? 1 : 2;
        } else if (isAt(m_at, '#')) {
            const int end = m_script.indexOf(QLatin1Char('\n'), m_at);
            m_at = end < 0 ? m_script.size() : end;
        } else if (isQuoteAt(m_at)) {
            takeText(m_at, m_at);
        } else if (isWordAt(m_at)) {
            while (isWordAt(m_at))
                ++m_at;
            if (isQuoteAt(m_at) && m_at - begin <= 2)
                takeText(begin, m_at);
            else
                m_tokens.push_back({Token::Name, begin, m_at, false});
        } else {
            m_tokens.push_back({Token::Sign, m_at, m_at + 1, false});
            ++m_at;
        }
    }
    return std::move(m_tokens);
}

/// Tells what the texts of a source stand for.
class Reader {
public:
    explicit Reader(const QString &script) : m_script(script), m_tokens(Scanner(script).tokens()) {}

    std::vector<qxScriptLiteral> texts();

private:
    /// An open bracket.
    struct Frame {
        const Word *word = nullptr; ///< the call that it belongs to; null for any other bracket
        int argument = 0; ///< how many commas were before
        bool isUnpacked = false; ///< an argument stands for any number of them
        QString first; ///< the last text of the first argument
    };

    QString written(std::size_t at) const
    {
        return at < m_tokens.size() && m_tokens[at].sort != Token::Text
            ? m_script.mid(m_tokens[at].begin, m_tokens[at].end - m_tokens[at].begin)
            : QString();
    }
    const Word *wordBefore(std::size_t bracket) const;
    qxScriptLiteral textAt(std::size_t at);
    qxScriptNamed meaningOf(std::size_t at) const;
    void followSign(std::size_t at);

    const QString &m_script;
    const std::vector<Token> m_tokens;
    std::vector<Frame> m_frames;
    int m_line = 1;
    int m_counted = 0; ///< up to which place lines are counted
};

/// The word that is called with the bracket at that token; null for any other call.
const Word *Reader::wordBefore(std::size_t bracket) const
{
    if (bracket == 0 || m_tokens[bracket - 1].sort != Token::Name)
        return nullptr;
    const std::size_t at = bracket - 1;
    const QString name = written(at);
    const QString before = at > 0 ? written(at - 1) : QString();
    const QString owner = at > 1 ? written(at - 2) : QString();
    const bool isOfModule = before != QLatin1String(".") || owner == QLatin1String("qxVariants")
        || owner == QLatin1String("__main__");
    if (before == QLatin1String("def") || before == QLatin1String("class"))
        return nullptr;
    const auto found = std::find_if(std::begin(words), std::end(words), [&](const Word &each) {
        return name == QLatin1String(each.name)
            && (each.isMethod ? before == QLatin1String(".") : isOfModule);
    });
    return found == std::end(words) ? nullptr : found;
}

/// What the text stands for that is, alone, an argument of a call.
qxScriptNamed Reader::meaningOf(std::size_t at) const
{
    if (m_frames.empty() || !m_frames.back().word || !m_tokens[at].isPlain || at == 0)
        return Named::Nothing;
    const Frame &frame = m_frames.back();
    const QString next = written(at + 1);
    if (next != QLatin1String(",") && next != QLatin1String(")"))
        return Named::Nothing;
    const auto isStart = [this](std::size_t place) {
        const QString sign = written(place);
        return sign == QLatin1String("(") || sign == QLatin1String(",");
    };
    if (isStart(at - 1))
        return frame.argument < 2 && !frame.isUnpacked
            ? frame.word->parameters[frame.argument].named
            : Named::Nothing;
    if (at < 3 || written(at - 1) != QLatin1String("=") || !isStart(at - 3))
        return Named::Nothing;
    const QString keyword = written(at - 2);
    for (const Parameter &each : frame.word->parameters) {
        if (*each.keyword && keyword == QLatin1String(each.keyword))
            return each.named;
    }
    return Named::Nothing;
}

qxScriptLiteral Reader::textAt(std::size_t at)
{
    const Token &token = m_tokens[at];
    m_line += m_script.midRef(m_counted, token.begin - m_counted).count(QLatin1Char('\n'));
    m_counted = token.begin;
    int from = token.begin;
    while (m_script[from] != QLatin1Char('"') && m_script[from] != QLatin1Char('\''))
        ++from;
    const bool isLong =
        token.end - from >= 6 && m_script.mid(from, 3) == QString(3, m_script[from]);
    const int quotes = isLong ? 3 : 1;
    const int length = std::max(0, token.end - from - 2 * quotes);
    qxScriptLiteral text{meaningOf(at), m_script.mid(from + quotes, length),
                         QString(),     m_line,
                         token.begin,   token.end - token.begin};
    for (Frame &frame : m_frames) {
        if (frame.argument == 0)
            frame.first = text.text;
    }
    if (!m_frames.empty() && m_frames.back().argument > 0)
        text.of = m_frames.back().first;
    return text;
}

void Reader::followSign(std::size_t at)
{
    const QChar sign = m_script[m_tokens[at].begin];
    if (QStringLiteral("([{").contains(sign)) {
        Frame frame;
        frame.word = sign == QLatin1Char('(') ? wordBefore(at) : nullptr;
        m_frames.push_back(frame);
    } else if (QStringLiteral(")]}").contains(sign)) {
        if (!m_frames.empty())
            m_frames.pop_back();
    } else if (!m_frames.empty() && sign == QLatin1Char(',')) {
        ++m_frames.back().argument;
    } else if (!m_frames.empty() && sign == QLatin1Char('*')) {
        m_frames.back().isUnpacked = true;
    }
}

std::vector<qxScriptLiteral> Reader::texts()
{
    std::vector<qxScriptLiteral> texts;
    for (std::size_t at = 0; at < m_tokens.size(); ++at) {
        if (m_tokens[at].sort == Token::Text)
            texts.push_back(textAt(at));
        else if (m_tokens[at].sort == Token::Sign)
            followSign(at);
    }
    return texts;
}

} // namespace

std::vector<qxScriptLiteral> qxScriptLiterals::of(const QString &script)
{
    return Reader(script).texts();
}

QString qxScriptLiterals::quoted(const QString &written, const QString &text)
{
    int quote = 0;
    while (written[quote] != QLatin1Char('"') && written[quote] != QLatin1Char('\''))
        ++quote;
    QString prefix = written.left(quote);
    const QString escaped = qxText::escaped(text, written[quote]);
    if (escaped != text)
        prefix.remove(QLatin1Char('r'), Qt::CaseInsensitive);
    const bool isLong =
        written.size() - quote >= 6 && written.mid(quote, 3) == QString(3, written[quote]);
    const QString quotes(isLong ? 3 : 1, written[quote]);
    return prefix + quotes + escaped + quotes;
}

bool qxScriptLiterals::mentions(const QString &text, const QString &name)
{
    const auto isWord = [&text](int at) {
        return at >= 0 && at < text.size()
            && (text[at].isLetterOrNumber() || text[at] == QLatin1Char('_'));
    };
    for (int at = text.indexOf(name); at >= 0; at = text.indexOf(name, at + 1)) {
        const int end = at + name.size();
        const bool isBroken = (isWord(at) && isWord(at - 1)) || (isWord(end - 1) && isWord(end));
        if (!isBroken)
            return true;
    }
    return false;
}
