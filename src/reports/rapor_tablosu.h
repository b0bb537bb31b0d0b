#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <Qt>

#include <functional>
#include <optional>

// A report as the list lstRapor holds it: rows of finished cells, the
// texts exactly as they are shown and printed. The frame shows, prints and
// exports it; no report writes output of its own.

enum class SatirTuru {
    Kayit,    // a line of the report
    Baslik,   // a heading row inside the list
    Ayirici,  // a separator row
    Kapanis,  // a closing row with the sums
};

struct RaporSatiri
{
    SatirTuru tur = SatirTuru::Kayit;
    QStringList hucreler;  // Text, SubItems(1), SubItems(2), ...
};

// A column of the list: its caption, width in twips and alignment. A column
// of amounts (sayi) goes to a spreadsheet as numbers where its cell reads as
// one; any other cell stays text.
struct RaporSutunu
{
    QString baslik;
    int genislik = 0;
    Qt::Alignment hiza = Qt::AlignLeft;
    bool sayi = false;
};

// A text at a Tab column of the paper, counted as Print counts them.
struct TabMetin
{
    int tab = 0;
    QString metin;
};
using KagitSatiri = QList<TabMetin>;

// How a list cell reaches its Tab column on paper.
enum class Kesim {
    Oldugu,    // as it stands
    Ilk,       // the first `genislik` characters
    SagaDaya,  // right-aligned to `genislik`, blank for 0 or empty
};

struct KagitHucresi
{
    int tab = 0;
    int hucre = 0;  // index into RaporSatiri::hucreler
    Kesim kesim = Kesim::Oldugu;
    int genislik = 0;
};

// A line of a page's head and whether it prints in bold.
struct BasSatiri
{
    KagitSatiri satir;
    bool kalin = false;
};

// The paper of a report: what YaziciT prints around the list's rows, with
// the line counter of its screen.
struct RaporKagidi
{
    int ilkSayac = 8;  // the counter's value on the first page
    int sinir = 46;    // a new page when the counter exceeds it
    int devam = 5;     // the counter's value on the pages after
    // Above the separators on every page; given the page number SayfaNo.
    std::function<KagitSatiri(int sayfaNo)> bant;
    QList<KagitSatiri> ayiricilar;
    KagitSatiri basliklar;  // in bold, on every page
    // The printed row of a list row, nothing when the row is not printed.
    // sira is the running print number of the rows printed so far, for the
    // reports that recount the Sıra column.
    std::function<std::optional<KagitSatiri>(const RaporSatiri& satir, int& sira)> satir;
    QList<KagitSatiri> kapanis;  // the closing block (signatures)
    // The head of a page as whole lines, in place of ayiricilar and
    // basliklar, where it is more than one heading line: that of the first
    // page of a table, and that of the pages after it (empty: the first's).
    QList<BasSatiri> ilkBas;
    QList<BasSatiri> devamBas;
    // The page number SayfaNo at the end of a page's last heading line, for
    // the forms that print it there instead of on a band.
    bool sayfaNoBaslikta = false;
};

struct RaporTablosu
{
    QString baslik;  // the title line of the paper
    // The class of the header block: "Taşınır Adi", "Taşınır Kod", "Ölçü Birimi".
    QString tasinirAdi;
    QString tasinirKod;
    QString olcuBirimi;
    // The header block under the title, filled by the frame from Sabit.
    QList<KagitSatiri> ustBilgi;
    QList<RaporSutunu> sutunlar;
    QList<RaporSatiri> satirlar;
};
