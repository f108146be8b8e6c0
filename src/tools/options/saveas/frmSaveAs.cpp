#include "tools/options/saveas/frmSaveAs.h"

#include "common/Blanks.h"
#include "common/CResEnum.h"
#include "common/Error.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "fileutil/CFileUtility.h"
#include "tools/options/lists/LockableBox.h"
#include "tools/options/saving/FileNameFlaw.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>

#include <utility>

namespace schedules {

namespace {

constexpr SourceName kSource("frmSaveAs");

constexpr int kLettersAcross = 90; // room for a folder

const QString kExtension = QStringLiteral(".xml");

int IndexOfEntry(const QComboBox& entries, const auto& isWanted)
{
    for (int index = 0; index < entries.count(); ++index) {
        if (isWanted(entries.itemText(index)))
            return index;
    }
    return -1;
}

/// The category for templates whose own is not known.
int IndexOfGeneral(const QComboBox& categories)
{
    return IndexOfEntry(categories, [](const QString& entry) { return entry.contains(QStringLiteral("GEN")); });
}

QString ExistingFileText()
{
    return QStringList{LoadResString(kTemplateFileExists), LoadResString(kTemplateNotSaved),
                       LoadResString(kTemplateNotOverwritten), LoadResString(kEnterDifferentName)}
        .join(QStringLiteral("\r\n"));
}

} // namespace

frmSaveAs::frmSaveAs(UserInterface& userInterface, QWidget* parent)
    : QDialog(parent),
      m_userInterface(userInterface),
      m_fields(*this),
      m_titleBarCaption(QStringLiteral("Save As... (New Template)"))
{
    setObjectName(QStringLiteral("frmSaveAs"));
    setSizeGripEnabled(true);
    LoadCaptions();
    setWindowTitle(m_titleBarCaption);
    ConnectFields();
    resize(sizeHint().expandedTo({kLettersAcross * fontMetrics().averageCharWidth(), 0}));
}

void frmSaveAs::LoadCaptions()
{
    if (ResourceModule() == 0)
        return;
    m_titleBarCaption = LoadResString(static_cast<int>(CResEnum::efrmSaveAs::frmSaveAs_CAPTION));
    const auto controls = findChildren<QWidget*>();
    LoadControls(objectName(), {controls.begin(), controls.end()}, m_userInterface);
}

void frmSaveAs::ConnectFields()
{
    connect(m_fields.name, &QLineEdit::textChanged, this, &frmSaveAs::Text1_Change);
    connect(m_fields.caption, &QLineEdit::textChanged, this, &frmSaveAs::txtTemplCaption_Change);
    connect(m_fields.useNameAsCaption, &QCheckBox::toggled, this, &frmSaveAs::chkUseNameAsCaption_Click);
    connect(m_fields.category, &QComboBox::currentIndexChanged, this, &frmSaveAs::cboCategory_Click);
    connect(m_fields.ok, &QPushButton::clicked, this, &frmSaveAs::cmdOK_Click);
    connect(m_fields.cancel, &QPushButton::clicked, this, &frmSaveAs::cmdCancel_Click);
    m_fields.name->installEventFilter(this);
}

void frmSaveAs::SetProposedFileName(const QString& fileName)
{
    m_proposedFileName = TrimmedOfBlanks(fileName);
}

void frmSaveAs::SetDefaultName(const QString& name)
{
    m_defaultName = TrimmedOfBlanks(name);
}

void frmSaveAs::SetNewName(const QString& name)
{
    m_newName = TrimmedOfBlanks(name);
}

void frmSaveAs::AddCategory(const QString& entry)
{
    m_fields.category->addItem(entry);
}

bool frmSaveAs::HasCategory() const
{
    return m_fields.category->currentIndex() >= 0 && !m_category.isEmpty();
}

void frmSaveAs::KeepFields(const QString& warning)
{
    m_keepsFields = true;
    m_callerWarning = warning;
}

void frmSaveAs::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    m_ok = false;
    if (std::exchange(m_keepsFields, false))
        Resume();
    else
        Form_Activate();
}

bool frmSaveAs::event(QEvent* event)
{
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        MakeRoom();
    return isHandled;
}

bool frmSaveAs::eventFilter(QObject* watched, QEvent* event)
{
    // Coming back from another window or a menu leaves the cursor where it was.
    const auto isEntered = [event] {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    };
    if (watched == m_fields.name && event->type() == QEvent::FocusIn && isEntered())
        Text1_GotFocus();
    return QDialog::eventFilter(watched, event);
}

void frmSaveAs::reject()
{
    m_ok = false;
    QDialog::reject();
}

void frmSaveAs::Form_Activate()
{
    Reported(m_userInterface, kSource.In(__func__), [this] {
        setWindowTitle(m_titleBarCaption);
        m_fields.useNameAsCaption->setChecked(true);
        m_fields.name->setText(m_defaultName);
        m_fields.fileName->setText(m_proposedFileName);
        m_fields.caption->setText(m_defaultName);
        SelectCategory(StartingCategory());
        Text1_Change();
        m_fields.name->setFocus();
    });
}

void frmSaveAs::Resume()
{
    ShowWarning(Warning());
    m_fields.name->setFocus();
}

int frmSaveAs::StartingCategory() const
{
    if (m_category.isEmpty())
        return IndexOfGeneral(*m_fields.category);
    return IndexOfEntry(*m_fields.category, [wanted = m_category.toUpper()](const QString& entry) {
        return entry.toUpper().contains(wanted);
    });
}

void frmSaveAs::SelectCategory(int index)
{
    m_fields.category->setCurrentIndex(index);
    cboCategory_Click(); // also when it was selected before
}

void frmSaveAs::Text1_Change()
{
    Reported(m_userInterface, kSource.In(__func__), [this] {
        m_newName = m_fields.name->text();
        const QString trimmed = TrimmedOfBlanks(m_newName);
        m_proposedFileName = (trimmed.isEmpty() ? QStringLiteral("*") : trimmed) + kExtension;
        m_fields.fileName->setText(m_proposedFileName);
        if (m_fields.useNameAsCaption->isChecked()) {
            m_fields.caption->setText(m_newName);
            m_displayName = m_newName;
        }
        m_fields.fullFileName->setText(m_filePath + m_proposedFileName);
        m_fields.ok->setEnabled(!trimmed.isEmpty());
        m_callerWarning.clear();
        ShowWarning(Warning());
    });
}

void frmSaveAs::Text1_GotFocus()
{
    m_fields.name->selectAll();
}

void frmSaveAs::txtTemplCaption_Change()
{
    m_displayName = m_fields.caption->text();
}

void frmSaveAs::chkUseNameAsCaption_Click()
{
    const bool usesName = m_fields.useNameAsCaption->isChecked();
    m_fields.caption->SetLocked(usesName);
    if (usesName)
        m_displayName = m_newName;
    m_fields.caption->setText(m_displayName);
}

void frmSaveAs::cboCategory_Click()
{
    Reported(m_userInterface, kSource.In(__func__), [this] {
        if (m_fields.category->currentIndex() < 0)
            return;
        m_category = m_fields.category->currentText().section(u' ', 0, 0);
        m_callerWarning.clear();
        ShowWarning(Warning());
    });
}

void frmSaveAs::cmdOK_Click()
{
    Reported(m_userInterface, kSource.In(__func__), [this] {
        if (FileExists())
            return RefuseExistingFile();
        m_ok = true;
        accept();
    });
}

void frmSaveAs::cmdCancel_Click()
{
    reject();
}

bool frmSaveAs::FileExists() const
{
    CFileUtility files;
    const bool exists = files.FindFile(m_filePath + m_proposedFileName);
    files.FindClose();
    return exists;
}

void frmSaveAs::RefuseExistingFile()
{
    m_ok = false;
    const QPointer alive(this);
    m_userInterface.Show(
        {.text = ExistingFileText(), .style = kCritical, .number = kTemplateFileExists, .subject = m_proposedFileName});
    if (!alive)
        return;
    ShowWarning(Warning());
    m_fields.name->setFocus();
}

QString frmSaveAs::Warning() const
{
    if (!m_callerWarning.isEmpty())
        return m_callerWarning;
    const QString name = TrimmedOfBlanks(m_newName);
    // Two dots are a file's name once they have their extension, but no name for a template.
    for (const QString& part : {name, name + kExtension}) {
        if (const QString flaw = FileNameFlaw(part); !flaw.isEmpty())
            return flaw;
    }
    if (FileExists())
        return ComponentText("%1 exists already.").arg(m_proposedFileName);
    return HasCategory() ? QString() : ComponentText("Choose a category.");
}

void frmSaveAs::ShowWarning(const QString& warning)
{
    m_fields.warning->setText(warning);
    m_fields.name->setAccessibleDescription(warning);
}

/// A text that breaks into more lines needs more height than the window was opened with.
void frmSaveAs::MakeRoom()
{
    const int needed = layout()->totalHeightForWidth(width());
    if (height() < needed)
        resize(width(), needed);
}

} // namespace schedules
