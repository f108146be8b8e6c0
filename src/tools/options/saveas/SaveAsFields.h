#pragma once

class QCheckBox;
class QComboBox;
class QDialog;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace schedules {

class LockableBox;

/// The controls of the dialog that names a new template, laid out and with the captions they were designed with, but
/// without behaviour. The dialog owns them.
class SaveAsFields
{
public:
    explicit SaveAsFields(QDialog& dialog);

    QGroupBox* const frame;
    QLineEdit* const name;
    QLabel* const warning;
    LockableBox* const fileName;
    LockableBox* const fullFileName;
    LockableBox* const caption;
    QCheckBox* const useNameAsCaption;
    QComboBox* const category;
    QPushButton* const ok;
    QPushButton* const cancel;

private:
    QLayout* FieldRows();
    QLayout* ButtonRow();
    void DescribeFields();
};

} // namespace schedules
