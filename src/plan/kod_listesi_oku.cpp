#include "kod_listesi_oku.h"

#include "veri_hatasi.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTextStream>

namespace {

QString satirHatasi(int no, const QString& mesaj)
{
    return QStringLiteral("Satır %1: %2 Hesap planına hiçbir şey yazılmadı.").arg(no).arg(mesaj);
}

}

// The plan's form: a main code of three digits, then groups of two.
QList<KodSatiri> KodListesiOku(const QString& dosya)
{
    QFile f(dosya);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        throw VeriHatasi(QStringLiteral("\"%1\" okunamadı: %2").arg(dosya, f.errorString()));
    static const QRegularExpression bicim(QStringLiteral("^[0-9]{3}( [0-9]{2}){0,6}$"));
    QTextStream akis(&f);
    QList<KodSatiri> satirlar;
    QHash<QString, int> gorulen;
    int no = 0;
    while (!akis.atEnd()) {
        const QString satir = akis.readLine();
        ++no;
        if (satir.trimmed().isEmpty())
            continue;
        const qsizetype sekme = satir.indexOf(u'\t');
        if (sekme < 0)
            throw VeriHatasi(satirHatasi(no, QStringLiteral("kod ile adı bir sekme ile ayrılmalı.")));
        const QString kod = satir.left(sekme).trimmed();
        const QString ad = satir.mid(sekme + 1).trimmed();
        if (!bicim.match(kod).hasMatch())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("\"%1\" kodu XXX XX XX XX XX XX XX biçiminde değil.").arg(kod)));
        if (ad.isEmpty())
            throw VeriHatasi(satirHatasi(no, QStringLiteral("\"%1\" kodunun adı boş.").arg(kod)));
        if (const auto onceki = gorulen.constFind(kod); onceki != gorulen.constEnd())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("\"%1\" kodu %2. satırda da var.").arg(kod).arg(*onceki)));
        gorulen.insert(kod, no);
        satirlar.append({no, kod, ad});
    }
    if (satirlar.isEmpty())
        throw VeriHatasi(QStringLiteral("\"%1\" içinde kod yok.").arg(QFileInfo(dosya).fileName()));
    return satirlar;
}
