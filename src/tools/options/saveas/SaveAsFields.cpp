#include "tools/options/saveas/SaveAsFields.h"

#include "common/modResource.h"
#include "tools/options/lists/LockableBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>

namespace schedules {

namespace {

/// What a field shows at least; a label that leaves less stands above its field.
constexpr int kFewestLetters = 15;

/// Controls are created in the order in which the keyboard visits them.
template <class Control>
Control* Named(const char* objectName, QWidget* parent, const QString& caption = {})
{
    auto* const control = new Control(parent);
    control->setObjectName(QLatin1String(objectName));
    if constexpr (requires { control->setTitle(caption); })
        control->setTitle(caption);
    else if constexpr (requires { control->setText(caption); })
        control->setText(caption);
    return control;
}

QLabel* LabelOf(QWidget* field, const char* objectName, const QString& caption)
{
    auto* const label = Named<QLabel>(objectName, field->parentWidget(), caption);
    label->setBuddy(field);
    return label;
}

} // namespace

SaveAsFields::SaveAsFields(QDialog& dialog)
    : frame(Named<QGroupBox>("Frame1", &dialog, QStringLiteral("Specify New Template Properties"))),
      name(Named<QLineEdit>("Text1", frame)),
      warning(Named<QLabel>("lblWarning", frame)),
      fileName(Named<LockableBox>("Text2", frame)),
      fullFileName(Named<LockableBox>("lblFullFileName", frame)),
      caption(Named<LockableBox>("txtTemplCaption", frame)),
      useNameAsCaption(Named<QCheckBox>("chkUseNameAsCaption", frame, QStringLiteral("Same as Template Name"))),
      category(Named<QComboBox>("cboCategory", frame)),
      ok(Named<QPushButton>("cmdOK", &dialog, QStringLiteral("OK"))),
      cancel(Named<QPushButton>("cmdCancel", &dialog, QStringLiteral("Cancel")))
{
    DescribeFields();
    frame->setLayout(FieldRows());
    auto* const rows = new QVBoxLayout(&dialog);
    rows->addWidget(frame);
    rows->addStretch(1);
    rows->addLayout(ButtonRow());
}

void SaveAsFields::DescribeFields()
{
    for (QLineEdit* const box : {name, static_cast<QLineEdit*>(caption)})
        box->setMaxLength(std::numeric_limits<int>::max());
    for (LockableBox* const box : {fileName, fullFileName})
        box->SetLocked(true);
    for (QLineEdit* const box : frame->findChildren<QLineEdit*>())
        box->setMinimumWidth(kFewestLetters * box->fontMetrics().averageCharWidth());
    fullFileName->setAccessibleName(ComponentText("Full file name"));
    warning->setTextFormat(Qt::PlainText); // it may tell a name
    warning->setWordWrap(true);
    category->setPlaceholderText(ComponentText("Choose a category.")); // without it the first entry would be selected
    category->setMinimumContentsLength(kFewestLetters);
    category->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ok->setDefault(true);
}

QLayout* SaveAsFields::FieldRows()
{
    auto* const rows = new QFormLayout;
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->addRow(LabelOf(name, "Label1", QStringLiteral("Name")), name);
    rows->addRow(nullptr, warning);
    rows->addRow(LabelOf(fileName, "Label2", QStringLiteral("Suggested FileName")), fileName);
    rows->addRow(nullptr, fullFileName);
    rows->addRow(LabelOf(caption, "Label4", QStringLiteral("Caption (Display name)")), caption);
    rows->addRow(nullptr, useNameAsCaption);
    rows->addRow(LabelOf(category, "Label5", QStringLiteral("Category")), category);
    return rows;
}

QLayout* SaveAsFields::ButtonRow()
{
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

} // namespace schedules
