#include "Report/qxStreams.h"
#include "Session/qxSession.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QXmlStreamReader>

namespace {

QList<QCommandLineOption> documentOptions()
{
    return {
        {QStringLiteral("out"),
         QStringLiteral("Writes the document to XML; - is standard output, which is the default."),
         QStringLiteral("XML")},
        {QStringLiteral("in"),
         QStringLiteral(
             "Replaces all variants by those of XML, - for standard input; needs --save."),
         QStringLiteral("XML")},
        qxCommands::saveOption(),
        qxCommands::traceOption()};
}

/// Hands out the document as the file holds it, so that a damaged one can be mended by hand.
int exportDocument(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.openScene(parser.positionalArguments().first()))
        return WorkFailed;
    const QByteArray document = session.file().variantsDocument();
    if (document.isEmpty())
        return qxCommands::fail(QStringLiteral("the scene holds no variants document"));
    const QString out = parser.isSet(QStringLiteral("out")) ? parser.value(QStringLiteral("out"))
                                                            : QStringLiteral("-");
    return qxStreams::write(out, document) ? Success : WorkFailed;
}

/// The reader takes any root element, but one that is not ours and gave nothing is a wrong file.
bool isWrongFile(const QByteArray &xml, const qxSession &session)
{
    QXmlStreamReader reader(xml);
    return session.isEmpty() && reader.readNextStartElement()
        && reader.name() != QLatin1String("Variants");
}

int importDocument(const QCommandLineParser &parser)
{
    const QString in = parser.value(QStringLiteral("in"));
    QByteArray xml;
    if (!qxStreams::read(in, xml))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.openScene(parser.positionalArguments().first()) || !session.readDocument(xml))
        return WorkFailed;
    if (isWrongFile(xml, session))
        return qxCommands::fail(QStringLiteral("%1: it is no variants document").arg(in));
    return qxCommands::saveIfAsked(session, parser);
}

int runDocument(const QCommandLineParser &parser)
{
    const bool in = parser.isSet(QStringLiteral("in"));
    if (in && parser.isSet(QStringLiteral("out")))
        return qxCommands::fail(QStringLiteral("--in and --out do not go together"), WrongUse);
    if (in != parser.isSet(QStringLiteral("save")))
        return qxCommands::fail(QStringLiteral("--in and --save go together: --in XML --save OUT"),
                                WrongUse);
    return in ? importDocument(parser) : exportDocument(parser);
}

} // namespace

const qxCommand qxCommands::document = {
    "document", "FILE", "Takes the variants document out of a scene, or puts one into it.",
    1,          1,      documentOptions,
    runDocument};
