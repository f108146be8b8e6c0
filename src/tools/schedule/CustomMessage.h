#pragma once

#include <QString>
#include <QTextEdit>

namespace schedules {

/// What the host wants to be read above the grid.
struct CustomMessageText
{
    QString text;
    bool bold = false;
    bool italic = false;
    int alignment = 0; ///< 0 left, 1 right, 2 centre
};

/// The box for the host's message: as high as its text (it scrolls when it gets less room), and gone when there is
/// none.
class CustomMessage : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomMessage(QWidget* parent = nullptr);

    void Show(const CustomMessageText& message);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowPlain(const CustomMessageText& message);
    void ShowRich(const QString& text);
};

} // namespace schedules
