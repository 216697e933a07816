#include "ShownTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDomDocument>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QTabBar>

namespace {

const char *const textProperties[] = {"text",    "title",          "windowTitle", "placeholderText",
                                      "toolTip", "informativeText"};

void takeItems(const QAbstractItemModel &model, const QModelIndex &parent, ShownTexts &texts)
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

void takeObject(const QObject &object, ShownTexts &texts)
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
QRegularExpression pattern(const QString &text)
{
    QString escaped = QRegularExpression::escape(text);
    static const QRegularExpression placeHolder(QStringLiteral("\\\\%[1-9n]"));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(escaped.replace(placeHolder, QStringLiteral(".+"))),
        QRegularExpression::DotMatchesEverythingOption);
}

bool matches(const QRegularExpression &expression, const QString &text)
{
    return expression.match(text).hasMatch();
}

} // namespace

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
        const QString context = message.parentNode().firstChildElement("name").text();
        const QDomElement translation = message.firstChildElement("translation");
        const QRegularExpression english = pattern(message.firstChildElement("source").text());
        const QDomNodeList forms = translation.elementsByTagName("numerusform");
        for (int form = 0; form < forms.size(); ++form)
            m_messages.append({context, english, pattern(forms.at(form).toElement().text())});
        if (forms.isEmpty())
            m_messages.append({context, english, pattern(translation.text())});
    }
}

QVector<Catalogue::Message> Catalogue::messagesOf(const QString &english) const
{
    QVector<Message> found;
    for (const Message &message : m_messages) {
        if (matches(message.english, english))
            found.append(message);
    }
    return found;
}

bool Catalogue::isEnglish(const QString &text) const
{
    const QVector<Message> found = messagesOf(text);
    const auto isTheSame = [&](const Message &message) { return matches(message.german, text); };
    return !found.isEmpty() && std::none_of(found.begin(), found.end(), isTheSame);
}

bool Catalogue::isTranslation(const QString &german, const QString &english) const
{
    const QVector<Message> found = messagesOf(english);
    return std::any_of(found.begin(), found.end(),
                       [&](const Message &message) { return matches(message.german, german); });
}

QStringList Catalogue::contextsOf(const QString &english) const
{
    QStringList found;
    for (const Message &message : messagesOf(english))
        found << message.context;
    return found;
}

QStringList Catalogue::contexts() const
{
    QStringList found;
    for (const Message &message : m_messages)
        found << message.context;
    found.removeDuplicates();
    return found;
}
