#pragma once

#include <QString>
#include <QTextEdit>

#include <memory>

namespace schedules {

/// What the host wants to be read above the grid: plain text, or rich text (see rtf/RtfReader.h), to which the other
/// members do not apply.
struct CustomMessageText
{
    QString text;
    bool bold = false;
    bool italic = false;
    int alignment = 0; ///< 0 left, 1 right, 2 centre
};

/// The box for the host's message: as high as its text (it scrolls when it gets less room), and gone when there is
/// none. Text without a colour of its own has the palette's. Nothing is ever loaded or followed.
class CustomMessage : public QTextEdit
{
    Q_OBJECT

public:
    explicit CustomMessage(QWidget* parent = nullptr);

    void Show(const CustomMessageText& message);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Empty, whatever is asked for: no text can make the box load a file.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowPlain(const CustomMessageText& message);
    void ShowRich(const QString& text);

    /// Of the document that is shown and of those that follow.
    void WrapFor(const QString& text);

    std::unique_ptr<QTextDocument> NewDocument() const;
    /// In place of the one before, of which nothing is left.
    void ShowDocument(std::unique_ptr<QTextDocument> next);
};

} // namespace schedules
