#pragma once

#include <QWidget>

class QLabel;
class QVBoxLayout;
class qxVariantMaker;

/// What the dock shows while there are no variants: what can be done about that.
class qxNoVariants : public QWidget {
    Q_OBJECT

public:
    explicit qxNoVariants(qxVariantMaker *maker);

    /// Looks at the scene again, which may have got other things, and translates all texts.
    void refresh();
    /// Says nothing until the next look, so that no text of another scene or language stays.
    void clear();

private:
    void addButton(const QString &text, const std::function<void()> &run);

    qxVariantMaker *m_maker;
    QLabel *m_text;
    QWidget *m_offers = nullptr;
    QVBoxLayout *m_layout;
};
