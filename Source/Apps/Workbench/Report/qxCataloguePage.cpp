#include "qxCataloguePage.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Commands/qxSetContents.h"
#include "qxFindCache.h"
#include "qxHtmlWriter.h"
#include "qxPageStyle.h"
#include "qxSinkDevice.h"

#include <QImage>

namespace {

/// Where several cards stand side by side on a screen of coarse pixels.
const char *const coarse = "(min-width: 900px) and (max-resolution: 1.4dppx)";

QString counted(std::size_t count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

/// The place of a section that links lead to.
QString sectionId(int number)
{
    return QStringLiteral("section-%1").arg(number);
}

void writeFact(qxHtmlWriter &page, const qxSetFact &fact)
{
    page.element("h4", fact.title);
    if (fact.isCode) {
        page.element("pre", fact.lines.join(QLatin1Char('\n')));
        return;
    }
    page.open("ul");
    for (const QString &line : fact.lines)
        page.element("li", line);
    page.close();
}

void writeContents(qxHtmlWriter &page, const qxVariantSet &set)
{
    const QList<qxSetFact> facts = qxSetContents::of(set);
    if (facts.isEmpty())
        return;
    int lines = 0;
    for (const qxSetFact &fact : facts)
        lines += fact.isCode ? 1 : fact.lines.size();
    page.open("details");
    page.element(
        "summary",
        QStringLiteral("Contents (%1)").arg(counted(std::size_t(lines), "entry", "entries")));
    for (const qxSetFact &fact : facts)
        writeFact(page, fact);
    page.close();
}

/// A set without a picture is shown with its preview.
void writePicture(qxHtmlWriter &page, const qxVariantSet &set,
                  const qxCataloguePage::PictureOf &pictureOf)
{
    qxCataloguePage::Picture picture = pictureOf(set.name);
    if (picture.large.isEmpty())
        picture = {set.getPreview(), {}};
    if (QImage::fromData(picture.large).isNull())
        return page.element("div", QStringLiteral("no picture"), "blank");
    page.open("picture");
    if (!picture.small.isEmpty())
        page.pictureWhere(coarse, picture.small);
    page.picture(picture.large, QStringLiteral("Picture of %1").arg(set.name));
    page.close();
}

void writeSet(qxHtmlWriter &page, const qxVariantSet &set,
              const qxCataloguePage::PictureOf &pictureOf)
{
    page.open("article", "card");
    writePicture(page, set, pictureOf);
    page.open("div", "words");
    page.open("div", "head");
    page.element("h3", set.name);
    if (!set.hotkey.isEmpty())
        page.element("kbd", set.hotkey);
    page.close();
    if (!set.comment.isEmpty())
        page.element("p", set.comment);
    writeContents(page, set);
    page.close();
    page.close();
}

/// A heading with sets below it.
struct Section {
    QString title;
    QString badge;
    QString comment;
    QList<const qxVariantSet *> sets;
};

QList<Section> sectionsOfSets()
{
    QList<Section> sections;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        const QString badge = group->visible ? QString() : QStringLiteral("hidden");
        sections += Section{group->name, badge, group->comment, {}};
        for (const qxVariantSet *set : group->sets)
            sections.last().sets += set;
    }
    Section rest{QStringLiteral("Sets in no group"), {}, {}, {}};
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group)
            rest.sets += set;
    }
    if (!rest.sets.isEmpty())
        sections += rest;
    return sections;
}

void writeHeading(qxHtmlWriter &page, int number, const Section &section)
{
    page.open("h2");
    page.attribute("id", sectionId(number));
    page.text(section.title);
    if (!section.badge.isEmpty())
        page.element("span", section.badge, "badge");
    page.close();
}

void writeSection(qxHtmlWriter &page, int number, const Section &section,
                  const qxCataloguePage::PictureOf &pictureOf)
{
    page.open("section");
    writeHeading(page, number, section);
    if (!section.comment.isEmpty())
        page.element("p", section.comment);
    if (section.sets.isEmpty())
        page.element("p", QStringLiteral("This group has no sets."));
    else
        page.open("div", "cards");
    for (const qxVariantSet *set : section.sets)
        writeSet(page, *set, pictureOf);
    if (!section.sets.isEmpty())
        page.close();
    page.close();
}

void writeOptions(qxHtmlWriter &page, const qxVariant &variant, const QString &current)
{
    page.open("td");
    for (const qxVariantOption &option : variant.options) {
        const QString key =
            option.shortcut.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(option.shortcut);
        page.element("span", option.name + key, option.name == current ? "chip now" : "chip");
    }
    if (variant.options.empty())
        page.text(QStringLiteral("none"));
    page.close();
}

void writeVariants(qxHtmlWriter &page)
{
    page.open("div", "wide");
    page.open("table");
    page.open("tr");
    for (const char *title : {"Kind", "Variant", "Now", "Default", "States"})
        page.element("th", QLatin1String(title));
    page.close();
    const qxFindCache cache(true);
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        const QString current = variant.shown().state();
        page.open("tr");
        page.element("td", kind.word);
        page.element("td", variant.name);
        page.element("td", current);
        page.element("td", variant.defaultState);
        writeOptions(page, variant, current);
        page.close();
    });
    page.close();
    page.close();
}

void writeHead(qxHtmlWriter &page, const QString &title, const QList<Section> &sections)
{
    page.element("h1", title);
    page.element("p",
                 QStringLiteral("%1 in %2, %3")
                     .arg(counted(qxVariants::_variantSets.size(), "variant set", "variant sets"),
                          counted(qxVariants::_variantGroups.size(), "group", "groups"),
                          counted(qxVariantKinds::count(), "variant", "variants")));
    page.open("nav");
    for (int number = 0; number < sections.size(); ++number) {
        page.open("a");
        page.attribute("href", QLatin1Char('#') + sectionId(number));
        page.text(sections[number].title);
        page.close();
    }
    page.close();
}

void write(qxHtmlWriter &page, const QString &title, const qxCataloguePage::PictureOf &pictureOf)
{
    const QList<Section> sections = sectionsOfSets();
    const Section variants{QStringLiteral("Variants"), {}, {}, {}};
    writeHead(page, title, sections + QList<Section>{variants});
    for (int number = 0; number < sections.size(); ++number)
        writeSection(page, number, sections[number], pictureOf);
    page.open("section");
    writeHeading(page, sections.size(), variants);
    if (qxVariantKinds::count() == 0)
        page.element("p", QStringLiteral("The scene has no variants."));
    else
        writeVariants(page);
    page.finish();
}

} // namespace

qxOutputFile::Content qxCataloguePage::html(const QString &title, const PictureOf &pictureOf)
{
    return [title, pictureOf](const qxOutputFile::Sink &sink) {
        qxSinkDevice device(sink);
        qxHtmlWriter page(device, title, QString::fromUtf8(qxPageStyle));
        write(page, title, pictureOf);
        device.flush();
        return QString();
    };
}

qxOutputFile::Content qxCataloguePage::html(const QString &title, const Pictures &pictures)
{
    return html(title, [pictures](const QString &set) { return pictures.value(set); });
}
