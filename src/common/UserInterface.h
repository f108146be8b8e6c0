#pragma once

#include <QString>
#include <QStringList>

namespace schedules {

/// Buttons and icon of a message box, as the sum of their numbers.
enum MessageStyle
{
    kOkOnly = 0,
    kYesNoCancel = 3,
    kYesNo = 4,
    kCritical = 16,
    kQuestion = 32,
    kExclamation = 48,
    kInformation = 64
};

enum class Answer
{
    Ok = 1,
    Cancel = 2,
    Yes = 6,
    No = 7
};

struct MessageBox
{
    QString text;
    int style = kOkOnly;
    QString title;
    int number = 0;  ///< the number of the localised text that is shown; 0 when there is none
    QString subject; ///< what it is about, such as a file's name, for whoever gathers boxes; may be empty
};

/// What a file dialog minds, as the sum of their numbers; other numbers are kept and mean nothing.
enum FileFlag
{
    kOverwritePrompt = 0x2,
    kPathMustExist = 0x800
};

struct FileQuestion
{
    QString title;
    QString fileName;
    QString defaultSuffix;
    QStringList filters;
    int flags = 0;
};

enum class Pointer
{
    Default = 0,
    Hourglass = 11
};

/// Whatever waits for the user or speaks to him outside of the tools' own widgets. The desktop has one implementation;
/// a program without a user has another, and so do tests.
class UserInterface
{
public:
    virtual ~UserInterface() = default;

    virtual Answer Show(const MessageBox& box) = 0;
    virtual void SetPointer(Pointer pointer) = 0;
    virtual void Beep() = 0;

    /// The name that the user chose to save under; empty when he cancelled.
    virtual QString AskSaveFileName(const FileQuestion& question) = 0;
};

} // namespace schedules
