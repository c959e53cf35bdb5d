// The entry of the program.

#include "interfacelanguage.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QTranslator>

int qMain(int argc, char** argv)
{
    QApplication application(argc, argv);
    QFile::remove(QStringLiteral("trajector_debug.log"));
    const QString language = systemLanguage();
    qDebug() << "locale" << QLocale::system().name();
    QTranslator translator;
    if (!isFrench(language)) {
        qDebug() << "english version loaded";
        // From the current directory. Without a catalogue the interface stays French, as it stands in the sources.
        translator.load(QStringLiteral("zephantrajector_en"));
        QCoreApplication::installTranslator(&translator);
    }
    MainWindow window;
    window.show();
    return QApplication::exec();
}

// Where the platform's start code calls qMain itself there is no other entry.
#ifndef QT_NEEDS_QMAIN
int main(int argc, char** argv)
{
    return qMain(argc, argv);
}
#endif
