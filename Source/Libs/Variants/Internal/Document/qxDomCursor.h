#pragma once

#include "Internal/Document/qxElementCursor.h"

#include <QDomElement>

/// Goes over an element that the DOM has parsed. It knows no places.
class qxDomCursor : public qxElementCursor {
public:
    explicit qxDomCursor(const QDomElement &element) : m_element(element) {}

    QString attribute(const QString &name) override;
    bool has(const QString &name) const override;
    void eachChild(const Child &child) override;
    QString text() override;
    bool picture(QByteArray &base64) override;
    void pass() override {}

private:
    QDomElement m_element;
};
