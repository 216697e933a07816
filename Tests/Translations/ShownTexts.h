#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

class QWidget;

/// Where a text stands: an object, and what of it.
typedef QPair<const QObject *, QByteArray> TextPlace;
typedef QHash<TextPlace, QString> ShownTexts;

/// Every text that people can read in a widget and all that is in it: labels, buttons, menus,
/// titles, tool tips, place holders, headers and items.
ShownTexts textsIn(QWidget &widget);

/// The German catalogue, by which a test knows which texts ought to be in which language. A text
/// may have others in the place of its place holders, and several lines may each be one.
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
