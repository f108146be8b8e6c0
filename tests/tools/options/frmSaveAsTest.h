#pragma once

#include "common/CompiledTable.h"
#include "support/ScriptedUserInterface.h"
#include "tools/options/saveas/frmSaveAs.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

/// The dialog as its caller prepares it, over a folder of its own, with a user at its keyboard and mouse.
class SaveAsTest : public ::testing::Test
{
protected:
    void Prepare(const QString& defaultName = "Pumps", const QString& category = "PUMP")
    {
        dialog = std::make_unique<frmSaveAs>(user);
        dialog->SetFilePath(folder.path() + '/');
        dialog->SetDefaultName(defaultName);
        dialog->SetCategory(category);
        dialog->SetTitleBarCaption("Save pumps as");
        for (const char* entry : {"VALVE (Valves)", "PUMP (Pumps)", "GEN (General)", "GENSET (Generators)"})
            dialog->AddCategory(entry);
    }

    void Show()
    {
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    void ShowNew(const QString& defaultName = "Pumps", const QString& category = "PUMP")
    {
        Prepare(defaultName, category);
        Show();
    }

    template <class Control>
    Control* Find(const char* name) const
    {
        auto* const control = dialog->findChild<Control*>(QLatin1String(name));
        EXPECT_TRUE(control) << name;
        return control;
    }

    QLineEdit* Box(const char* name) const { return Find<QLineEdit>(name); }
    QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
    QCheckBox* Check() const { return Find<QCheckBox>("chkUseNameAsCaption"); }
    QComboBox* Categories() const { return Find<QComboBox>("cboCategory"); }
    std::string Warning() const { return Find<QLabel>("lblWarning")->text().toStdString(); }
    std::string Text(const char* box) const { return Box(box)->text().toStdString(); }

    /// Replaces a box's text by what the keyboard types.
    void Type(const char* box, const QString& text)
    {
        Box(box)->setFocus();
        Box(box)->selectAll();
        QTest::keyClick(Box(box), Qt::Key_Delete);
        QTest::keyClicks(Box(box), text);
    }

    void TypeName(const QString& name) { Type("Text1", name); }

    void Click(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }
    void Tick() { QTest::keyClick(Check(), Qt::Key_Space); }

    /// Chooses an entry by the keyboard.
    void Choose(int index)
    {
        QTest::keyClick(Categories(), Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            QTest::keyClick(Categories(), Qt::Key_Down);
    }

    void Put(const QString& fileName) const
    {
        QFile file(folder.filePath(fileName));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << fileName.toStdString();
    }

    /// What a caller reads: "new name|display name|category|file name".
    std::string Result() const
    {
        const QStringList parts{dialog->NewName(), dialog->DisplayName(), dialog->Category(),
                                dialog->ProposedFileName()};
        return parts.join('|').toStdString();
    }

    /// What the boxes show: "name|file name|full file name below the folder|caption|category".
    std::string Shown() const
    {
        const QString full = Box("lblFullFileName")->text();
        EXPECT_TRUE(full.startsWith(dialog->FilePath())) << full.toStdString();
        const QStringList parts{Box("Text1")->text(), Box("Text2")->text(), full.mid(dialog->FilePath().size()),
                                Box("txtTemplCaption")->text(), Categories()->currentText()};
        return parts.join('|').toStdString();
    }

    QTemporaryDir folder;
    ScriptedUserInterface user;
    std::unique_ptr<frmSaveAs> dialog;
};

} // namespace schedules::testing
