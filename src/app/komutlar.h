#pragma once

#include <QStringList>

// The command-line commands, apart from main() so that tests run them.
namespace Komutlar {

// The options the commands read (empty when not given).
struct Secenekler
{
    QString satir;                       // ornek-veri: voucher lines
    bool gerekirse = false;              // ornek-veri: only into a folder without records
    QString no, cins, yil, sayfa, cikti; // yazdir; cikti also for ornek-formlar and rapor
    QString hangi, baslangic, bitis, hesap;  // rapor defter
};

// Runs the command word (the first of the arguments) on the data folder,
// without a window. Answers the exit code: 0 done, 1 failed, 2 misused, 3
// a voucher page written whole but its amount could not be spelled; the
// message goes to the standard error. A folder that lacks a data file, or
// holds one that cannot be read, fails before anything is written.
int Calistir(const QStringList& argumanlar, const QString& klasor, const Secenekler& secenek);

}
