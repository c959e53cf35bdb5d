// The responder answers what was expected and reports everything else, also boxes inside boxes.
#include "boxresponder.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class TestBoxResponder : public QObject
{
    Q_OBJECT

private slots:
    void pressesTheButton()
    {
        BoxResponder boxes;
        boxes.expectMessage("Titre", "Texte", QMessageBox::No);
        QCOMPARE(QMessageBox::question(nullptr, "Titre", "Texte"), QMessageBox::No);
        QVERIFY(boxes.allUsed());
        QCOMPARE(boxes.seen().size(), 1);
        QCOMPARE(boxes.seen().value(0).icon, QMessageBox::Question);
    }

    void tellsWhatABoxStandsOver()
    {
        BoxResponder boxes;
        boxes.expectAnyMessage();
        boxes.expectAnyMessage();
        QDialog window;
        QMessageBox::information(&window, "Titre", "Texte");
        QMessageBox::information(nullptr, "Titre", "Texte");
        QCOMPARE(boxes.seen().value(0).parentClass, QString("QDialog"));
        QCOMPARE(boxes.seen().value(1).parentClass, QString());
    }

    void pressesAButtonOfItsOwn()
    {
        BoxResponder boxes;
        boxes.expectMessage("Titre", "Texte", QStringLiteral("Effacer"));
        QMessageBox box(QMessageBox::Warning, "Titre", "Texte");
        box.addButton("Annuler", QMessageBox::RejectRole);
        QAbstractButton* erase = box.addButton("Effacer", QMessageBox::AcceptRole);
        box.exec();
        QCOMPARE(box.clickedButton(), erase);
        QCOMPARE(boxes.seen().value(0).choices.size(), 2);
    }

    void reportsABoxThatNobodyExpected()
    {
        BoxResponder boxes;
        QMessageBox::information(nullptr, "Titre", "Texte");
        QCOMPARE(boxes.takeComplaints(), QStringList{"nobody expected QMessageBox \"Titre\" \"Texte\""});
    }

    void reportsAnotherText()
    {
        BoxResponder boxes;
        boxes.expectMessage("Titre", "Texte");
        QMessageBox::information(nullptr, "Titre", "Autre texte");
        const QStringList complaints = boxes.takeComplaints();
        QCOMPARE(complaints.size(), 2);
        QVERIFY(complaints.at(0).contains("Autre texte"));
        QVERIFY(complaints.at(1).startsWith("nobody used"));
    }

    void reportsAnUnusedAnswer()
    {
        BoxResponder boxes;
        boxes.expectMessage("Titre", "Texte");
        QCOMPARE(boxes.takeComplaints(), QStringList{"nobody used the answer for QMessageBox \"Titre\" \"Texte\""});
    }

    void reportsAMissingButton()
    {
        BoxResponder boxes;
        boxes.expectMessage("Titre", "Texte", QMessageBox::Save);
        QMessageBox::information(nullptr, "Titre", "Texte");
        QCOMPARE(boxes.takeComplaints().size(), 1);
    }

    void anUnusedAnswerFailsTheTest()
    {
        const char* inChild = "ZEPHAN_UNUSED_ANSWER";
        if (qEnvironmentVariableIsSet(inChild)) {
            BoxResponder boxes;
            boxes.expectMessage("Titre", "Texte");
            return;
        }
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(inChild, "1");
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {QTest::currentTestFunction()});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), 1);
        QVERIFY(child.readAll().contains("nobody used the answer"));
    }

    void givesATextAndAnItem()
    {
        BoxResponder boxes;
        boxes.expectInput("Titre", "Nom", "ABC1");
        boxes.expectInput("Titre", "Liste", "B");
        boxes.expectInputRejected("Titre", "Nom");
        QCOMPARE(QInputDialog::getText(nullptr, "Titre", "Nom"), QString("ABC1"));
        QCOMPARE(QInputDialog::getItem(nullptr, "Titre", "Liste", {"A", "B", "C"}, 0, false), QString("B"));
        bool accepted = true;
        QInputDialog::getText(nullptr, "Titre", "Nom", QLineEdit::Normal, "x", &accepted);
        QVERIFY(!accepted);
        QCOMPARE(boxes.seen().value(1).choices, (QStringList{"A", "B", "C"}));
    }

    void reportsAnItemThatIsNotInTheList()
    {
        BoxResponder boxes;
        boxes.expectInput("Titre", "Liste", "Z");
        QInputDialog::getItem(nullptr, "Titre", "Liste", {"A", "B"}, 0, false);
        QCOMPARE(boxes.takeComplaints().size(), 1);
    }

    void givesFileNames()
    {
        QTemporaryDir folder;
        const QStringList names{folder.filePath("a.CSV"), folder.filePath("b.CSV")};
        for (const QString& name : names) {
            QFile file(name);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        BoxResponder boxes;
        boxes.expectFiles("Ouvrir", {names.first()});
        boxes.expectFiles("Ouvrir", names);
        boxes.expectFiles("Dossier", {folder.path()});
        boxes.expectFiles("Enregistrer", {folder.filePath("neu.CSV")});
        boxes.expectFilesRejected("Ouvrir");
        QCOMPARE(QFileDialog::getOpenFileName(nullptr, "Ouvrir", QString(), "CSV (*.CSV)"), names.first());
        QCOMPARE(QFileDialog::getOpenFileNames(nullptr, "Ouvrir"), names);
        QCOMPARE(QFileDialog::getExistingDirectory(nullptr, "Dossier"), folder.path());
        QCOMPARE(QFileDialog::getSaveFileName(nullptr, "Enregistrer"), folder.filePath("neu.CSV"));
        QCOMPARE(QFileDialog::getOpenFileName(nullptr, "Ouvrir", folder.path()), QString());
        QCOMPARE(boxes.seen().value(0).choices, QStringList{"CSV (*.CSV)"});
        QCOMPARE(boxes.seen().value(4).value, folder.path());
    }

    void drivesADialogThatOpensABox()
    {
        BoxResponder boxes;
        boxes.expectDialog("QDialog", [](QDialog* dialog) {
            QMessageBox::warning(dialog, "Inner", "Text");
            dialog->accept();
        });
        boxes.expectMessage("Inner", "Text");
        QDialog dialog;
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(boxes.seen().size(), 2);
    }

    void answersTheSameDialogTwice()
    {
        BoxResponder boxes;
        QMessageBox box(QMessageBox::Information, "Titre", "Texte");
        boxes.expectMessage("Titre", "Texte");
        boxes.expectMessage("Titre", "Texte");
        box.exec();
        box.exec();
        QVERIFY(boxes.allUsed());
    }
};

QTEST_MAIN(TestBoxResponder)
#include "tst_boxresponder.moc"
