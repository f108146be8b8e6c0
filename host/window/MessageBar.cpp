#include "host/window/MessageBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace schedules::host {

namespace {

QToolButton* Button(MessageBar& bar, const char* name)
{
    auto* button = new QToolButton(&bar);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    return button;
}

} // namespace

MessageBar::MessageBar(QWidget* parent) : QFrame(parent), m_text(new QLabel(this)), m_offer(Button(*this, "cmdOffer"))
{
    auto* close = Button(*this, "cmdCloseMessage");
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAccessibleName(tr("Close"));
    m_text->setObjectName(QStringLiteral("lblMessage"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_text, 1);
    row->addWidget(m_offer);
    row->addWidget(close);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_offer, &QToolButton::clicked, this, [this] {
        hide();
        Q_EMIT OfferTaken();
    });
    hide();
}

void MessageBar::Tell(const QString& text, const QString& offer)
{
    m_text->setText(text);
    m_offer->setText(offer);
    m_offer->setVisible(!offer.isEmpty());
    show();
}

} // namespace schedules::host
