#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

class QWidget;

/// Where a text stands: an object, and what of it.
typedef QPair<const QObject *, QByteArray> TextPlace;
typedef QHash<TextPlace, QString> ShownTexts;

/// Every visible text of a widget and its children: labels, buttons, menus, titles, tool tips,
/// place holders, headers and items.
ShownTexts textsIn(QWidget &widget);

/// The German catalogue, to check the language of texts. Place holders match any text; each line of
/// a text may be a message of its own.
class Catalogue {
public:
    Catalogue();

    /// Whether the text is an English one that has another translation.
    bool isEnglish(const QString &text) const;
    /// Whether it is the English text of a message.
    bool knows(const QString &english) const;

private:
    QVector<QPair<QRegularExpression, QRegularExpression>> m_texts; ///< English and German ones
};
