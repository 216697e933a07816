#include "qxNodeVariant.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "qxMessage.h"

#include <QDomDocument>

#include <benchmark/benchmark.h>

const int Sets = 1000;
const int References = 20;
const int Variants = 10000;
const int Options = 6;

static void forgetAll()
{
    qxMessage none;
    qxVariants::clearAll(none);
}

static void fillRegistry()
{
    for (int i = 0; i < Variants; ++i) {
        const QString name = QStringLiteral("Variant %1").arg(i);
        qxNodeVariant *variant = qxVariants::createNodeVariant(name, false);
        variant->nodeName = name;
        for (int option = 0; option < Options; ++option)
            variant->add(QStringLiteral("State %1").arg(option), QString());
        variant->defaultState = QStringLiteral("State 0");
    }
    for (int i = 0; i < Sets; ++i) {
        qxVariantSet *set =
            qxVariants::createVariantSet(QStringLiteral("Set %1").arg(i), false, nullptr);
        for (int reference = 0; reference < References; ++reference)
            set->addNodeVariant(
                QStringLiteral("Variant %1").arg((i * References + reference) % Variants),
                QStringLiteral("State %1").arg(reference % Options));
    }
}

static QByteArray sampleDocument()
{
    fillRegistry();
    const QByteArray text = qxVariantWriter().write();
    forgetAll();
    return text;
}

/// The same elements as in `from`, made one by one through the DOM.
static void copyByHand(const QDomElement &from, QDomDocument &document, QDomNode to)
{
    QDomElement copy = document.createElement(from.tagName());
    const QDomNamedNodeMap attributes = from.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        copy.setAttribute(attribute.name(), attribute.value());
    }
    to.appendChild(copy);
    for (QDomNode child = from.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement())
            copyByHand(child.toElement(), document, copy);
        else
            copy.appendChild(document.createTextNode(child.nodeValue()));
    }
}

static void parseBare(benchmark::State &state)
{
    const QByteArray text = sampleDocument();
    for (auto _ : state) {
        QDomDocument document;
        benchmark::DoNotOptimize(document.setContent(QByteArray(text.constData())));
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

static void readDocument(benchmark::State &state)
{
    const QByteArray text = sampleDocument();
    for (auto _ : state) {
        {
            qxVariantReader reader;
            reader.read(text.constData());
        }
        state.PauseTiming(); // what a host does before it loads the next scene
        forgetAll();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

static void writeBare(benchmark::State &state)
{
    QDomDocument sample;
    sample.setContent(sampleDocument());
    for (auto _ : state) {
        QDomDocument document(QStringLiteral("variants"));
        document.appendChild(document.createProcessingInstruction(
            QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"utf-8\"")));
        copyByHand(sample.documentElement(), document, document);
        benchmark::DoNotOptimize(document.toString(1).toUtf8());
    }
}

static void writeDocument(benchmark::State &state)
{
    fillRegistry();
    for (auto _ : state) {
        qxVariantWriter writer;
        benchmark::DoNotOptimize(writer.write());
    }
    forgetAll();
}

BENCHMARK(parseBare)->Name("Reading/bare")->Unit(benchmark::kMillisecond);
BENCHMARK(readDocument)->Name("Reading/document")->Unit(benchmark::kMillisecond);
BENCHMARK(writeBare)->Name("Writing/bare")->Unit(benchmark::kMillisecond);
BENCHMARK(writeDocument)->Name("Writing/document")->Unit(benchmark::kMillisecond);
