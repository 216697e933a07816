#pragma once

#include "qxDocument.h"

/// Goes over the elements of a document, whatever holds it. It stands at one element: at the child
/// that eachChild has gone into, at first at the root.
class qxElementCursor {
public:
    /// Gets the child that was gone into. It must pass it, by `eachChild`, `text`, `picture` or
    /// `pass`, once; its attributes are known until then.
    typedef std::function<void(const QString &tag, const qxSourceLocation &location)> Child;

    virtual ~qxElementCursor() = default;

    /// The text of an attribute of the element, empty when it is missing.
    virtual QString attribute(const QString &name) = 0;
    virtual bool has(const QString &name) const = 0;

    /// Goes into each child of the element, in order.
    virtual void eachChild(const Child &child) = 0;
    /// All text in the element.
    virtual QString text() = 0;
    /// The text of the CDATA section that the element begins with; false without one.
    virtual bool picture(QByteArray &base64) = 0;
    virtual void pass() = 0;
};
