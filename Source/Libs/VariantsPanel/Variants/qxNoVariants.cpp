#include "qxNoVariants.h"

#include "qxVariantKinds.h"
#include "qxVariantMaker.h"

#include "Registry/qxVariantSources.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

qxNoVariants::qxNoVariants(qxVariantMaker *maker)
    : m_maker(maker), m_text(new QLabel), m_layout(new QVBoxLayout(this))
{
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_layout->addWidget(m_text);
    m_layout->addStretch(1);
}

void qxNoVariants::refresh()
{
    delete m_offers;
    m_offers = new QWidget;
    new QVBoxLayout(m_offers);
    m_offers->layout()->setContentsMargins(0, 0, 0, 0);
    m_layout->insertWidget(1, m_offers);
    const auto offers = qxVariantMaker::offers();
    for (const qxVariantMaker::Offer &offer : offers) {
        const qxVariantKind *const kind = offer.kind;
        addButton(tr("Make Variants of %1").arg(offer.things),
                  [this, kind] { m_maker->makeOfAll(*kind); });
    }
    const bool hasNodes = !qxVariantSources::others(qxVariantKinds::node).empty();
    if (hasNodes)
        addButton(tr("Choose What to Show and Hide..."),
                  [this] { m_maker->makeOfChosen(qxVariantKinds::node); });
    if (!qxVariantSources::others(qxVariantKinds::material).empty())
        addButton(tr("Choose Materials to Switch..."),
                  [this] { m_maker->makeOfChosen(qxVariantKinds::material); });
    m_text->setText(
        !offers.empty() ? tr("There are no variants yet. The scene has things that can vary:")
            : hasNodes ? tr("There are no variants yet, and nothing in the scene varies by itself. "
                            "Every node can be shown and hidden, and materials can be switched:")
                       : tr("There are no variants. Open a scene to make some of it."));
}

void qxNoVariants::clear()
{
    delete m_offers;
    m_offers = nullptr;
    m_text->clear();
}

void qxNoVariants::addButton(const QString &text, const std::function<void()> &run)
{
    auto *const button = new QPushButton(text);
    // The button goes with what it starts.
    connect(button, &QPushButton::clicked, this, run, Qt::QueuedConnection);
    m_offers->layout()->addWidget(button);
}
