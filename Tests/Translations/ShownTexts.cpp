#include "ShownTexts.h"

#include "qxTestPaths.h"

#include <QDomDocument>
#include <QtWidgets>

const char *const textProperties[] = {"text",    "title",          "windowTitle", "placeholderText",
                                      "toolTip", "informativeText"};

static void takeItems(const QAbstractItemModel &model, const QModelIndex &parent, ShownTexts &texts)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            const QByteArray place = QByteArray::number(qulonglong(index.internalId())) + '/'
                + QByteArray::number(row) + '/' + QByteArray::number(column);
            texts.insert({&model, "item " + place}, index.data().toString());
            texts.insert({&model, "tip " + place}, index.data(Qt::ToolTipRole).toString());
        }
        takeItems(model, model.index(row, 0, parent), texts);
    }
}

static void takeObject(const QObject &object, ShownTexts &texts)
{
    for (const char *property : textProperties)
        texts.insert({&object, property}, object.property(property).toString());
    // Qt derives the tool tip of an action from its text.
    const auto *const action = qobject_cast<const QAction *>(&object);
    if (action && action->toolTip() == action->iconText())
        texts.remove({&object, "toolTip"});
    if (const auto *const bar = qobject_cast<const QTabBar *>(&object)) {
        for (int tab = 0; tab < bar->count(); ++tab)
            texts.insert({bar, QByteArray::number(tab)}, bar->tabText(tab));
    }
    if (const auto *const box = qobject_cast<const QComboBox *>(&object))
        takeItems(*box->model(), QModelIndex(), texts);
    const auto *const view = qobject_cast<const QAbstractItemView *>(&object);
    if (!view || !view->model())
        return;
    takeItems(*view->model(), QModelIndex(), texts);
    for (int section = 0; section < view->model()->columnCount(); ++section) {
        const QVariant header = view->model()->headerData(section, Qt::Horizontal);
        texts.insert({view->model(), "header " + QByteArray::number(section)}, header.toString());
    }
}

/// The text with anything in the place of its place holders.
static QRegularExpression pattern(const QString &text)
{
    QString escaped = QRegularExpression::escape(text);
    static const QRegularExpression placeHolder(QStringLiteral("\\\\%[1-9n]"));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(escaped.replace(placeHolder, QStringLiteral(".+"))),
        QRegularExpression::DotMatchesEverythingOption);
}

ShownTexts textsIn(QWidget &widget)
{
    ShownTexts texts;
    takeObject(widget, texts);
    for (const QObject *object : widget.findChildren<QObject *>())
        takeObject(*object, texts);
    return texts;
}

Catalogue::Catalogue()
{
    QFile file(QX_GERMAN_CATALOGUE);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        qFatal("%s cannot be read", QX_GERMAN_CATALOGUE);
    const QDomNodeList messages = document.elementsByTagName("message");
    for (int number = 0; number < messages.size(); ++number) {
        const QDomElement message = messages.at(number).toElement();
        const QDomElement translation = message.firstChildElement("translation");
        const QDomNodeList forms = translation.elementsByTagName("numerusform");
        for (int form = 0; form < qMax(1, forms.size()); ++form) {
            const QDomElement german = forms.isEmpty() ? translation : forms.at(form).toElement();
            m_texts.append(
                {pattern(message.firstChildElement("source").text()), pattern(german.text())});
        }
    }
}

bool Catalogue::isEnglish(const QString &text) const
{
    bool isFound = false;
    for (const auto &each : m_texts) {
        if (!each.first.match(text).hasMatch())
            continue;
        if (each.second.match(text).hasMatch())
            return false;
        isFound = true;
    }
    return isFound;
}

bool Catalogue::knows(const QString &english) const
{
    return std::any_of(m_texts.begin(), m_texts.end(), [&english](const auto &each) {
        return each.first.match(english).hasMatch();
    });
}
