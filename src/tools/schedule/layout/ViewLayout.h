#pragma once

class QPushButton;
class QWidget;

namespace schedules {

class CustomMessage;
class Legend;
class ScheduleToolbar;
class SpreadView;

/// The widgets of the view, one below the other; the view owns them.
struct ViewLayout
{
    explicit ViewLayout(QWidget& view);

    /// To be called when the view has another size. A long message scrolls; the grid is what the view is for.
    void FollowHeight(int height);

    /// Which of the command buttons there are, and what they say.
    void ShowCommandButtons(bool isSelector);

    CustomMessage* message;
    ScheduleToolbar* toolbar;
    SpreadView* grid;
    Legend* legend;
    QPushButton* continueButton;
    QPushButton* closeButton;
};

} // namespace schedules
