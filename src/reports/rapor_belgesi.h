#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

#include <QString>
#include <QStringList>

#include <memory>

class Cikti;

// One document of reports: the tables of a walk one after another, then
// finished. Every output of every report screen is one of these, so a
// report computes its tables and never writes output of its own. A document
// that is dropped before Bitir leaves nothing behind: no half file, no page
// sent to a printer.
class RaporBelgesi
{
public:
    virtual ~RaporBelgesi() = default;
    // Throws Hata with the message the user sees.
    virtual void Ekle(const RaporTablosu& tablo) = 0;
    // Writes the document out; throws Hata when it cannot.
    virtual void Bitir() = 0;
};

namespace RaporBelgeleri {

// The paper through the printing layer: preview, printer or PDF, as the
// output given says. yaziBoy is the size of the header block and the rows
// (YaziBoy), yon the orientation (1 OpDik, 2 OpYat). sayfaNo is SayfaNo: it
// is printed on the band and goes on counting across tables and documents.
std::unique_ptr<RaporBelgesi> Kagit(Cikti& cikti, const RaporKagidi& kagit, double yaziBoy, int yon, int& sayfaNo);

// The paper into a PDF file, written a table at a time.
std::unique_ptr<RaporBelgesi> Pdf(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon,
                                  int& sayfaNo);

// The finished cells as text for spreadsheets: UTF-8, ';' between cells,
// the title and the header block above each table.
std::unique_ptr<RaporBelgesi> Csv(const QString& dosya);

// A workbook of sheets: the tables added go to the sheet started last.
class XlsxKitabi : public RaporBelgesi
{
public:
    // Starts the next sheet, named ad (cut to the 31 characters a sheet
    // name may have); the first table added before any names "Sayfa1".
    // onde: the sheet shows first when the book is opened.
    virtual void YeniSayfa(const QString& ad, bool onde = false) = 0;
};

// The same as an XLSX workbook: amounts as numbers in the Turkish format,
// texts as texts, the header block on top, the column widths of the list.
std::unique_ptr<XlsxKitabi> Xlsx(const QString& dosya);

// The output a file name asks for by its ending (.pdf, .csv, .xlsx); null
// for any other. A PDF is printed on the paper given.
std::unique_ptr<RaporBelgesi> Dosya(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon,
                                    int& sayfaNo);

// The period as the papers print it: "dd.mm.yyyy -dd.mm.yyyy".
QString Donem(const RaporSuzgeci& s);

// A cell right-aligned to the width as the papers place amounts (SagaDaya):
// blank for 0 or empty.
QString Sagda(QString hucre, int genislik);

// The labels of the header block as most forms print them.
const QStringList& Etiketler();

// The count committee's signatures from the constants: the title, room to
// sign, the names, their titles.
QList<KagitSatiri> SayimKurulu(const SabitSatiri& sabit);

// The header block of the statutory forms from the constants of Sabit and
// the class of the table, at Tab 2, 80 and 106. etiketler are the four
// labels of the "Adı" column, whose blanks differ from form to form; a
// fifth, where given, stands for the label " Ölçü Birimi  : ".
QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo, const QStringList& etiketler);

}
