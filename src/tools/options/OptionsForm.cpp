#include "tools/options/OptionsForm.h"

#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "controls/lists/FilteredList.h"
#include "tools/options/names/NameBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <limits>

namespace schedules {

namespace {

// The texts that the controls are designed with: those with a key get theirs from the resource module, the others from
// the component's own catalogue.
constexpr auto kFrameOfName = "User-Defined Data Item:";
constexpr auto kNameLabel = "Display Name:";
constexpr auto kUpdate = "Update";
constexpr auto kReset = "Reset";
constexpr auto kLegend = "(*) Indicates user-defined data item";

/// Around fields that a frame holds together, in pixels.
constexpr int kGap = 4;

// What the editor's size is compared with, in lines and letters of its font and in pixels.
constexpr int kTallLines = 18;
constexpr int kTallGaps = 180;
constexpr int kLettersForLegend = 88;
constexpr int kLettersForNameInOneRow = 120;
constexpr int kFewestEntries = 3;

template <class Widget>
Widget* Named(QWidget& parent, const char* name, const char* text)
{
    auto* widget = new Widget(&parent);
    widget->setObjectName(QLatin1String(name));
    if constexpr (requires { widget->setText(QString()); })
        widget->setText(QString::fromUtf8(text));
    return widget;
}

/// A member of a control array.
template <class Widget>
Widget* Member(QWidget& parent, const char* name, int index, const char* text)
{
    Widget* widget = Named<Widget>(parent, name, text);
    widget->setProperty("index", index);
    return widget;
}

/// A label that shows what the editor is at.
QLabel* ValueLabel(QWidget& parent, const char* name)
{
    auto* label = Named<QLabel>(parent, name, "");
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QGroupBox* Frame(QWidget& parent, const char* name, const char* title)
{
    auto* frame = Named<QGroupBox>(parent, name, "");
    frame->setTitle(QString::fromUtf8(title));
    return frame;
}

template <class... Widgets>
QHBoxLayout* InARow(Widgets*... widgets)
{
    auto* row = new QHBoxLayout;
    (row->addWidget(widgets), ...);
    return row;
}

/// Leaves less room in a frame, but for what is below its title.
void Tighten(QLayout& content)
{
    content.setContentsMargins(kGap, content.contentsMargins().top(), kGap, kGap);
}

} // namespace

OptionsForm::OptionsForm(QWidget& editor) : m_editor(editor)
{
    BuildTemplateRow();
    BuildGroups();
    BuildItems();
    BuildNameEditor();
    BuildButtons();
    LayOut();
    SetTabOrder();
    Mirror(editor.layoutDirection());
    Translate();
}

void OptionsForm::BuildTemplateRow()
{
    m_templateLabel = Member<QLabel>(m_editor, "Label1", 0, "&Template:");
    cboTemplates = Named<QComboBox>(m_editor, "cboTemplates", "");
    cboTemplates->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboTemplates->setMinimumContentsLength(16);
    m_templateLabel->setBuddy(cboTemplates);
    fraTemplate = Frame(m_editor, "fraTemplate", "");
    m_hint = Named<QLabel>(m_editor, "Label2", "Check the groups and data items that the schedule shows.");
    m_hint->setWordWrap(true);
    m_fileLabel = Named<QLabel>(m_editor, "lblTemplFileName", "Template file name:");
    fileName = ValueLabel(m_editor, "templateFileName");
}

void OptionsForm::BuildGroups()
{
    m_groupsLabel = Member<QLabel>(m_editor, "Label1", 1, "G&roups:");
    lstGroups = new CheckList(&m_editor);
    lstGroups->setObjectName(QStringLiteral("lstGroups"));
    groups = new FilteredList(lstGroups, &m_editor);
    m_groupsLabel->setBuddy(lstGroups);
    cmdGroupMove = {Member<QPushButton>(m_editor, "cmdGroupMove", 0, "Up"),
                    Member<QPushButton>(m_editor, "cmdGroupMove", 1, "Down")};
    chkShowGroupName = Named<QCheckBox>(m_editor, "chkShowGroupName", "Show &group name");
}

void OptionsForm::BuildItems()
{
    fraGroup = Frame(m_editor, "fraGroup", "Group");
    KeepCaptionWithoutGroup();
    m_groupNameLabel = Named<QLabel>(m_editor, "lblGroupName", "Group name:");
    groupName = ValueLabel(m_editor, "groupName");
    m_itemsLabel = Member<QLabel>(m_editor, "Label1", 2, "Data &items:");
    lstItems = new CheckList(&m_editor);
    lstItems->setObjectName(QStringLiteral("lstItems"));
    items = new FilteredList(lstItems, &m_editor);
    m_itemsLabel->setBuddy(lstItems);
    cmdItemMove = {Member<QPushButton>(m_editor, "cmdItemMove", 0, "Up"),
                   Member<QPushButton>(m_editor, "cmdItemMove", 1, "Down")};
    m_legend = Named<QLabel>(m_editor, "lblLegend", kLegend);
    m_legend->setWordWrap(true);
}

void OptionsForm::BuildNameEditor()
{
    fraItem = Frame(m_editor, "fraItem", kFrameOfName);
    lblDisplayName = Named<QLabel>(m_editor, "lblDisplayName", kNameLabel);
    txtDisplayName = Named<NameBox>(m_editor, "txtDisplayName", "");
    lblDisplayName->setBuddy(txtDisplayName);
    fraItem->setFlat(true);
    cmdUpdateUDItemName = Named<QPushButton>(m_editor, "cmdUpdateUDItemName", kUpdate);
    cmdResetUDItemName = Named<QPushButton>(m_editor, "cmdResetUDItemName", kReset);
}

void OptionsForm::BuildButtons()
{
    cmdSaveAs = Named<QPushButton>(m_editor, "cmdSaveAs", "&Save as…");
    cmdDelete = Named<QPushButton>(m_editor, "cmdDelete", "&Delete");
    cmdOK = Named<QPushButton>(m_editor, "cmdOK", "OK");
    cmdCancel = Named<QPushButton>(m_editor, "cmdCancel", "Cancel");
    cmdApply = Named<QPushButton>(m_editor, "cmdApply", "&Apply");
}

void OptionsForm::LayOut()
{
    auto* choice = InARow(m_templateLabel, cboTemplates, cmdSaveAs, cmdDelete);
    choice->setStretch(1, 1);
    auto* file = InARow(m_fileLabel, fileName);
    file->setStretch(1, 1);

    auto* frame = new QGridLayout(fraTemplate);
    frame->addLayout(file, 0, 0, 1, 2);
    frame->addWidget(m_hint, 1, 0, 1, 2);
    frame->addLayout(GroupsColumn(), 2, 0);
    frame->addWidget(fraGroup, 2, 1);
    frame->setRowStretch(2, 1);
    frame->setColumnStretch(0, 2);
    frame->setColumnStretch(1, 3);
    fraGroup->setLayout(ItemsColumn());
    Tighten(*fraGroup->layout());

    auto* all = new QVBoxLayout(&m_editor);
    all->addLayout(choice);
    all->addWidget(fraTemplate, 1);
    all->addLayout(ButtonRow());
    all->setSizeConstraint(QLayout::SetNoConstraint);
}

QLayout* OptionsForm::GroupsColumn()
{
    auto* moves = InARow(cmdGroupMove[0], cmdGroupMove[1]);
    moves->addStretch();
    auto* column = new QVBoxLayout;
    column->addWidget(m_groupsLabel);
    column->addWidget(groups, 1);
    column->addLayout(moves);
    column->addWidget(chkShowGroupName);
    return column;
}

QLayout* OptionsForm::ItemsColumn()
{
    auto* name = InARow(m_groupNameLabel, groupName);
    name->setStretch(1, 1);
    auto* moves = InARow(cmdItemMove[0], cmdItemMove[1], m_legend);
    moves->setStretch(2, 1);
    moves->addStretch(); // where the legend is left out
    m_nameFields = new QGridLayout(fraItem);
    Tighten(*m_nameFields);
    m_nameFields->setColumnStretch(1, 1);
    PlaceNameFields(false);
    auto* column = new QVBoxLayout;
    column->addLayout(name);
    column->addWidget(m_itemsLabel);
    column->addWidget(items, 1);
    column->addLayout(moves);
    column->addWidget(fraItem);
    return column;
}

QLayout* OptionsForm::ButtonRow()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : {cmdOK, cmdCancel, cmdApply})
        row->addWidget(button);
    return row;
}

void OptionsForm::SetTabOrder()
{
    QWidget* before = cboTemplates;
    for (QWidget* next : std::initializer_list<QWidget*>{
             cmdSaveAs, cmdDelete, groups, cmdGroupMove[0], cmdGroupMove[1], chkShowGroupName, items, cmdItemMove[0],
             cmdItemMove[1], txtDisplayName, cmdUpdateUDItemName, cmdResetUDItemName, cmdOK, cmdCancel, cmdApply})
    {
        QWidget::setTabOrder(before, next);
        before = next;
    }
}

void OptionsForm::Translate() const
{
    fraItem->setTitle(ComponentText(kFrameOfName));
    lblDisplayName->setText(ComponentText(kNameLabel));
    cmdUpdateUDItemName->setText(ComponentText(kUpdate));
    cmdResetUDItemName->setText(ComponentText(kReset));
    m_legend->setText(ComponentText(kLegend));
    lstGroups->setAccessibleName(m_groupsLabel->text().remove(u'&'));
    lstItems->setAccessibleName(m_itemsLabel->text().remove(u'&'));
    txtDisplayName->setAccessibleName(lblDisplayName->text());
    cboTemplates->setAccessibleName(m_templateLabel->text().remove(u'&'));
    // Two buttons each have the same caption; what is said of them tells them apart.
    for (const auto& buttons : {cmdGroupMove, cmdItemMove}) {
        for (QPushButton* button : buttons)
            button->setAccessibleName(button->toolTip());
    }
}

void OptionsForm::FitInto(QSize size)
{
    const QFontMetrics metrics = m_editor.fontMetrics();
    const bool isTall = size.height() >= kTallLines * metrics.lineSpacing() + kTallGaps;
    const int letters = size.width() / std::max(metrics.averageCharWidth(), 1);
    for (QLabel* explanation : {m_hint, m_fileLabel, fileName, m_groupNameLabel, groupName})
        explanation->setVisible(isTall);
    m_legend->setVisible(isTall || letters >= kLettersForLegend);
    PlaceNameFields(letters < kLettersForNameInOneRow);
    lblDisplayName->setVisible(isTall || letters >= kLettersForNameInOneRow);
    for (CheckList* list : {lstGroups, lstItems})
        list->setMinimumHeight(kFewestEntries * metrics.lineSpacing() + 2 * list->frameWidth());
}

/// In one row, or the buttons below the text.
void OptionsForm::PlaceNameFields(bool narrow)
{
    for (QWidget* field :
         std::initializer_list<QWidget*>{lblDisplayName, txtDisplayName, cmdUpdateUDItemName, cmdResetUDItemName})
        m_nameFields->removeWidget(field);
    m_nameFields->addWidget(lblDisplayName, 0, 0);
    m_nameFields->addWidget(txtDisplayName, 0, 1, 1, narrow ? 3 : 1);
    if (narrow) {
        m_nameFields->addWidget(cmdUpdateUDItemName, 1, 0, 1, 2, Qt::AlignRight);
        m_nameFields->addWidget(cmdResetUDItemName, 1, 2, 1, 2);
        return;
    }
    m_nameFields->addWidget(cmdUpdateUDItemName, 0, 2);
    m_nameFields->addWidget(cmdResetUDItemName, 0, 3);
}

/// Names are read from the side where the controls begin, whatever script they are in.
void OptionsForm::Mirror(Qt::LayoutDirection direction)
{
    const auto side = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    for (QLabel* label : {fileName, groupName, m_hint, m_legend, m_groupsLabel, m_itemsLabel})
        label->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void OptionsForm::SetEnabled(bool enabled)
{
    for (QWidget* control : m_editor.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!control->isWindow()) // a dialog that is open can still be left
            control->setEnabled(enabled);
    }
}

void OptionsForm::KeepCaptionWithoutGroup()
{
    m_captionWithoutGroup = fraGroup->title();
}

} // namespace schedules
