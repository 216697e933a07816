#include "qxKeyText.h"

#include <QKeySequence>

QString qxKeyText::shown(const QString &held)
{
    const QString text =
        QKeySequence(held, QKeySequence::NativeText).toString(QKeySequence::NativeText);
    return text.isEmpty() ? held : text;
}

QString qxKeyText::held(const QKeySequence &key)
{
    // One combination selects: what is typed behind it is left out.
    return key.isEmpty() ? QString() : QKeySequence(key[0]).toString(QKeySequence::PortableText);
}
