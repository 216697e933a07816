#include "qxDiffPage.h"

#include "Compare/qxLineDiff.h"
#include "qxDiffWords.h"
#include "qxHtmlWriter.h"
#include "qxPageStyle.h"
#include "qxPreviewPicture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>

namespace {

/// On top of the style of all pages.
const char *const ownStyle = R"(
:root { --added: #1a7f37; --removed: #b3372f; --changed: #8a6100; }
@media (prefers-color-scheme: dark) {
  :root { --added: #5cc27a; --removed: #ef7d72; --changed: #dcb052; } }
.cards { grid-template-columns: repeat(auto-fill, minmax(420px, 1fr)); }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1px; }
figure { margin: 0; }
figcaption { padding: 4px 16px 0; font-size: 12px; color: var(--soft); }
.added { color: var(--added); } .removed { color: var(--removed); } .changed { color: var(--changed); }
.words ul { margin-top: 8px; }
li { padding-left: 16px; text-indent: -16px; }
li pre { margin: 4px 0; text-indent: 0; color: var(--ink); }
li b { display: inline-block; width: 16px; text-indent: 0; }
)";

/// The class of the style for what is added, removed or anything else.
const char *classOf(qxDifferenceSort sort)
{
    return sort == qxDifferenceSort::Added  ? "added"
        : sort == qxDifferenceSort::Removed ? "removed"
                                            : "changed";
}

void writePicture(qxHtmlWriter &page, const QString &base64, const QString &caption)
{
    const QByteArray bytes = QByteArray::fromBase64(base64.toLatin1());
    page.open("figure");
    page.element("figcaption", caption);
    if (qxPreviewPicture::isDecodable(bytes) && !QImage::fromData(bytes).isNull())
        page.picture(bytes, caption);
    else
        page.element("div", QStringLiteral("no picture"), "blank");
    page.close();
}

/// Only where they differ: the page holds its pictures itself.
void writePictures(qxHtmlWriter &page, const qxThingDifference &thing)
{
    for (const qxFieldDifference &each : thing.fields) {
        if (each.field != QLatin1String("preview"))
            continue;
        page.open("div", "pair");
        writePicture(page, each.before, QStringLiteral("before"));
        writePicture(page, each.after, QStringLiteral("after"));
        page.close();
    }
}

void writeScript(qxHtmlWriter &page, const qxFieldDifference &field)
{
    page.open("pre");
    for (const QString &line : qxLineDiff::unified(field.before, field.after)) {
        const QChar sign = line.at(0);
        page.open("span",
                  sign == QLatin1Char('+')       ? "added"
                      : sign == QLatin1Char('-') ? "removed"
                      : sign == QLatin1Char('@') ? "changed"
                                                 : nullptr);
        page.text(line + QLatin1Char('\n'));
        page.close();
    }
    page.close();
}

void writeLine(qxHtmlWriter &page, qxDifferenceSort sort, const QString &line)
{
    page.element("b", qxDiffWords::sign(sort), classOf(sort));
    page.text(line);
}

void writeThing(qxHtmlWriter &page, const qxFileComparison &comparison,
                const qxThingDifference &thing)
{
    page.open("article", "card");
    writePictures(page, thing);
    page.open("div", "words");
    page.open("div", "head");
    page.element("h3", qxDiffWords::title(comparison, thing));
    page.open("span", "chip");
    page.element("span", qxDiffWords::word(thing.sort()), classOf(thing.sort()));
    page.close();
    page.close();
    if (!thing.fields.isEmpty())
        page.open("ul");
    for (const qxFieldDifference &each : thing.fields) {
        page.open("li");
        writeLine(page, each.sort, qxDiffWords::line(each));
        if (each.field == QLatin1String("script"))
            writeScript(page, each);
        page.close();
    }
    if (!thing.fields.isEmpty())
        page.close();
    page.close();
    page.close();
}

/// Things below their headings.
void writeThings(qxHtmlWriter &page, const qxFileComparison &comparison)
{
    QString heading;
    for (const qxThingDifference &each : comparison.variants.things) {
        const QString own = qxDiffWords::heading(comparison, each);
        if (own != heading) {
            if (!heading.isEmpty())
                page.close();
            page.element("h2", own);
            page.open("div", "cards");
        }
        heading = own;
        writeThing(page, comparison, each);
    }
    if (!heading.isEmpty())
        page.close();
}

void writeScene(qxHtmlWriter &page, const qxFileComparison &comparison)
{
    if (comparison.scene.isEmpty())
        return;
    page.element("h2", QStringLiteral("Rest of the scene"));
    page.open("ul");
    for (const qxSceneDifference &each : comparison.scene) {
        page.open("li");
        writeLine(page, each.sort, qxDiffWords::line(each));
        page.close();
    }
    page.close();
}

} // namespace

QByteArray qxDiffPage::html(const qxFileComparison &comparison)
{
    const QString title = QFileInfo(comparison.nameAfter).fileName();
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    qxHtmlWriter page(bytes, QStringLiteral("Differences of ") + title,
                      QString::fromUtf8(qxPageStyle) + QString::fromUtf8(ownStyle));
    page.element("h1", QStringLiteral("Differences of ") + title);
    page.element(
        "p",
        QStringLiteral("before: %1\nafter: %2\n%3")
            .arg(comparison.nameBefore, comparison.nameAfter, qxDiffWords::summary(comparison)));
    writeThings(page, comparison);
    writeScene(page, comparison);
    page.finish();
    return bytes.data();
}
