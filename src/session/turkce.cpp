#include "turkce.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool QtTurkcesiniYukle(QCoreApplication& uygulama)
{
    auto* ceviri = new QTranslator(&uygulama);
    if (!ceviri->load(QLocale(QLocale::Turkish, QLocale::Turkey), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete ceviri;
        return false;
    }
    return QCoreApplication::installTranslator(ceviri);
}
