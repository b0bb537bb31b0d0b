#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

class Veritabani;

// One field of the constants row that the screen edits.
struct SabitAlan
{
    QString alan;     // column of Sabit
    QString kontrol;  // the box that edits it
    QString etiket;   // beside the box; empty where the frame's title names the pair
    QString cerceve;  // the frame the box sits in
    bool sayi;        // stored through Val
};

// The edited fields in screen order; the boxes of one frame are adjacent.
const QList<SabitAlan>& SabitAlanlari();

// The row by field name, as text.
using SabitSatiri = QMap<QString, QString>;

// The single row of Sabit in GENEL.MDB (the connection given), key 1. Every
// routine throws VeriHatasi when the file cannot be read or written.
namespace SabitKayit {

// The edited fields of the row; nothing when there is no row.
std::optional<SabitSatiri> Getir(Veritabani& genel);

// Writes every edited field (a field missing from the values as empty), the
// numbers through Val, and empties the rates and limits no screen edits.
// Creates the row with key 1 when there is none. One transaction.
void Kaydet(Veritabani& genel, const SabitSatiri& degerler);

void Sil(Veritabani& genel);
bool Var(Veritabani& genel);

}
