#pragma once

#include <QString>

#include <utility>

class qxName;

/// Is told when a name it watches gets another text.
class qxNameWatcher {
public:
    /// `name` holds its new text already; `before` is the text that it had.
    virtual void renamed(const qxName &name, const QString &before) = 0;

protected:
    ~qxNameWatcher() = default;
};

/// The name of an object that others look up by name.
///
/// Reads like any QString. Assigning a text tells the watcher, normally the list that owns the
/// object, so that its look-ups stay right however a name is changed. QString's other ways to
/// change a text are not available: build the text first, then assign it. A copy has the text, not
/// the watcher.
class qxName : public QString {
public:
    qxName() = default;
    qxName(const QString &text) : QString(text) {}
    qxName(const qxName &other) : QString(other) {}

    qxName &operator=(const QString &text);
    qxName &operator=(const qxName &other) { return *this = static_cast<const QString &>(other); }
    /// `text` is UTF-8.
    qxName &operator=(const char *text) { return *this = QString::fromUtf8(text); }
    qxName &operator=(const QByteArray &text) { return *this = QString::fromUtf8(text); }
    qxName &operator=(QLatin1String text) { return *this = QString(text); }
    void clear() { *this = QString(); }

    /// Who is told from now on; null for nobody. A name has one watcher at most.
    void setWatcher(qxNameWatcher *watcher) { m_watcher = watcher; }

    const_iterator begin() const { return constBegin(); }
    const_iterator end() const { return constEnd(); }
    const QChar *data() const { return constData(); }
    const QChar *unicode() const { return constData(); }
    QChar operator[](int index) const { return at(index); }
    QChar front() const { return at(0); }
    QChar back() const { return at(size() - 1); }

    template <class... Any>
    void operator+=(Any &&...) = delete;
    template <class... Any>
    void append(Any &&...) = delete;
    template <class... Any>
    void prepend(Any &&...) = delete;
    template <class... Any>
    void push_back(Any &&...) = delete;
    template <class... Any>
    void push_front(Any &&...) = delete;
    template <class... Any>
    void insert(Any &&...) = delete;
    template <class... Any>
    void remove(Any &&...) = delete;
    template <class... Any>
    void replace(Any &&...) = delete;
    template <class... Any>
    void fill(Any &&...) = delete;
    template <class... Any>
    void swap(Any &&...) = delete;
    template <class... Any>
    void setNum(Any &&...) = delete;
    template <class... Any>
    void setUnicode(Any &&...) = delete;
    template <class... Any>
    void setUtf16(Any &&...) = delete;
    template <class... Any>
    void setRawData(Any &&...) = delete;
    template <class... Any>
    void sprintf(Any &&...) = delete;
    template <class... Any>
    void vsprintf(Any &&...) = delete;
    void resize(int, QChar = QChar()) = delete;
    void truncate(int) = delete;
    void chop(int) = delete;

private:
    qxNameWatcher *m_watcher = nullptr;
};

inline qxName &qxName::operator=(const QString &text)
{
    const QString before = *this;
    QString::operator=(text);
    if (m_watcher && before != text)
        m_watcher->renamed(*this, before);
    return *this;
}
