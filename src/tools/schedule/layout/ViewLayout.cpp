#include "tools/schedule/layout/ViewLayout.h"

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/layout/CustomMessage.h"
#include "tools/schedule/layout/Legend.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace schedules {

namespace {

template <class Widget, class... Arguments>
Widget* Named(const char* name, Arguments&&... arguments)
{
    auto* widget = new Widget(std::forward<Arguments>(arguments)...);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

ViewLayout::ViewLayout(QWidget& view)
    : message(new CustomMessage(&view)),
      toolbar(new ScheduleToolbar(&view)),
      grid(Named<SpreadView>("vaSpread1", &view)),
      legend(new Legend(&view)),
      continueButton(Named<QPushButton>("cmdContinue", QStringLiteral("Continue"), &view)),
      closeButton(Named<QPushButton>("cmdCancel", QStringLiteral("Cancel"), &view))
{
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    continueButton->hide();

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(continueButton);
    buttons->addWidget(closeButton);

    auto* column = new QVBoxLayout(&view);
    column->addWidget(message);
    column->addWidget(toolbar);
    column->addWidget(grid, 1);
    column->addWidget(legend);
    column->addLayout(buttons);
}

void ViewLayout::FollowHeight(int height)
{
    message->setMaximumHeight(height / 3);
}

void ViewLayout::ShowCommandButtons(bool isSelector)
{
    constexpr auto kCancelCaption = static_cast<int>(CResEnum::ectlSchedule::cmdCancel_CAPTION);
    continueButton->setVisible(isSelector);
    closeButton->setText(LoadResString(isSelector ? kCancelCaption : kCloseCaption));
}

} // namespace schedules
