#pragma once

#include "tools/options/saveas/SaveAsFields.h"

#include <QDialog>

namespace schedules {

class UserInterface;

/// The dialog in which the user names a new template: its name, its caption, its category, and the file name that
/// follows from the name. It writes nothing; it only refuses the name of a file that exists.
///
/// The caller sets `FilePath`, `DefaultName`, `ProposedFileName`, `Category` and `TitleBarCaption`, adds the
/// categories, shows the dialog (`exec`), and reads `OK`, `NewName`, `DisplayName`, `Category` and `ProposedFileName`.
/// The properties that are meant to be set only give, when they are read, what was set.
///
/// Each showing starts anew from the default name, but for one after `KeepFields`. The dialog goes with its parent,
/// also while it is open: `exec` then returns `Rejected`, and the caller's pointer has to be one that notices.
///
///     const QPointer dialog = new frmSaveAs(userInterface, window);
///     ...
///     dialog->exec();
///     while (dialog && dialog->OK() && IsTaken(dialog->NewName())) {
///         dialog->KeepFields(reason);
///         dialog->exec();
///     }
class frmSaveAs : public QDialog
{
    Q_OBJECT

    /// The folder of the templates, with a separator at its end.
    Q_PROPERTY(QString FilePath READ FilePath WRITE SetFilePath)
    /// The file's name with its extension. It is trimmed when it is set, and follows the name as it is typed.
    Q_PROPERTY(QString ProposedFileName READ ProposedFileName WRITE SetProposedFileName)
    /// The name that a showing starts with; trimmed when it is set.
    Q_PROPERTY(QString DefaultName READ DefaultName WRITE SetDefaultName)
    /// The template's name: trimmed when it is set, but exactly as typed when the user types it.
    Q_PROPERTY(QString NewName READ NewName WRITE SetNewName)
    /// The template's caption, exactly as typed or as the name was.
    Q_PROPERTY(QString DisplayName READ DisplayName)
    /// The category's name. A showing selects the first entry that contains it in any letter case, or without one the
    /// general category's; it stays as it is when there is none. Selecting an entry sets it to the entry's name.
    Q_PROPERTY(QString Category READ Category WRITE SetCategory)
    /// The title of the next showing. Until it is set it is the form's own caption.
    Q_PROPERTY(QString TitleBarCaption READ TitleBarCaption WRITE SetTitleBarCaption)
    /// Whether the dialog was closed with OK and the file name was free, as the number -1, else 0. In C++ `OK()` is a
    /// bool.
    Q_PROPERTY(int OK READ OKValue)

public:
    /// The user interface shows that a file exists, and failures; it must outlive the dialog. Captions are those of
    /// the resource module, if there is one by now.
    explicit frmSaveAs(UserInterface& userInterface, QWidget* parent = nullptr);

    QString FilePath() const { return m_filePath; }
    void SetFilePath(const QString& path) { m_filePath = path; }
    QString ProposedFileName() const { return m_proposedFileName; }
    void SetProposedFileName(const QString& fileName);
    QString DefaultName() const { return m_defaultName; }
    void SetDefaultName(const QString& name);
    QString NewName() const { return m_newName; }
    void SetNewName(const QString& name);
    QString DisplayName() const { return m_displayName; }
    QString Category() const { return m_category; }
    void SetCategory(const QString& name) { m_category = name; }
    QString TitleBarCaption() const { return m_titleBarCaption; }
    void SetTitleBarCaption(const QString& caption) { m_titleBarCaption = caption; }
    bool OK() const { return m_ok; }
    int OKValue() const { return m_ok ? -1 : 0; }

    /// Adds an entry, "NAME (DISPLAYNAME)", behind the others; none is selected by that. What stands before the first
    /// blank is the category's name.
    void AddCategory(const QString& entry);

    /// Whether an entry with a name is selected. `Category` alone does not tell, since one that matches no entry stays.
    bool HasCategory() const;

    /// Makes the next showing keep all that the user entered and chose, with this warning under the name until the
    /// name or the category is changed. Without it, or with an empty text, the warning is the dialog's own, if any.
    void KeepFields(const QString& warning = {});

    /// Cancels; so do Escape and closing the window.
    void reject() override;

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LoadCaptions();
    void ConnectFields();

    void Form_Activate();
    void Text1_Change();
    void Text1_GotFocus();
    void txtTemplCaption_Change();
    void chkUseNameAsCaption_Click();
    void cboCategory_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    void Resume();
    int StartingCategory() const;
    void SelectCategory(int index);
    bool FileExists() const;
    void RefuseExistingFile();
    QString Warning() const;
    void ShowWarning(const QString& warning);
    void MakeRoom();

    UserInterface& m_userInterface;
    SaveAsFields m_fields;
    QString m_filePath;
    QString m_proposedFileName;
    QString m_defaultName;
    QString m_newName;
    QString m_displayName;
    QString m_category;
    QString m_titleBarCaption;
    QString m_callerWarning;
    bool m_keepsFields = false;
    bool m_ok = false;
};

} // namespace schedules
