#pragma once

#include <QObject>
#include <QSize>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;
class QWidget;

namespace schedules {

class CheckList;
class FilteredList;
class NameBox;

/// The controls of the options editor under their names, built and laid out. They belong to the widget that they are
/// built on.
class OptionsForm
{
public:
    explicit OptionsForm(QWidget& editor);

    /// Of all controls that stand in the editor itself.
    void SetEnabled(bool enabled);

    /// Leaves out what explains more than it does where there is little room.
    void FitInto(QSize size);
    void Mirror(Qt::LayoutDirection direction);

    /// Down to this size everything that does something can be reached.
    static constexpr QSize kSmallest{480, 360};

    /// Sets the texts that have no key, in the language of the resource module.
    void Translate() const;

    /// The caption of the frame around a group's data items while there is none.
    QString CaptionWithoutGroup() const { return m_captionWithoutGroup; }
    void KeepCaptionWithoutGroup();

    QComboBox* cboTemplates;
    QGroupBox* fraTemplate;
    QLabel* fileName; ///< of the current template's file
    CheckList* lstGroups;
    QCheckBox* chkShowGroupName;
    QGroupBox* fraGroup;
    QLabel* groupName;
    CheckList* lstItems;
    QGroupBox* fraItem;
    QLabel* lblDisplayName;
    NameBox* txtDisplayName;
    QPushButton* cmdUpdateUDItemName;
    QPushButton* cmdResetUDItemName;
    QPushButton* cmdSaveAs;
    QPushButton* cmdDelete;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdApply;
    std::array<QPushButton*, 2> cmdGroupMove; ///< up, down
    std::array<QPushButton*, 2> cmdItemMove;

    FilteredList* groups; ///< `lstGroups` and its filter
    FilteredList* items;

private:
    void BuildTemplateRow();
    void BuildGroups();
    void BuildItems();
    void BuildNameEditor();
    void BuildButtons();
    void LayOut();
    QLayout* GroupsColumn();
    QLayout* ItemsColumn();
    QLayout* ButtonRow();
    void SetTabOrder();
    void PlaceNameFields(bool narrow);

    QWidget& m_editor;
    QLabel* m_templateLabel;
    QLabel* m_hint;
    QLabel* m_fileLabel;
    QLabel* m_groupsLabel;
    QLabel* m_itemsLabel;
    QLabel* m_groupNameLabel;
    QLabel* m_legend;
    QGridLayout* m_nameFields;
    QString m_captionWithoutGroup;
};

} // namespace schedules
