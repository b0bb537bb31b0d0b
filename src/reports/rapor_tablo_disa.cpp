#include "rapor_belgesi.h"

#include "bicim.h"
#include "kullanici_dosyasi.h"

#include <QFileInfo>
#include <QHash>

#include <xlsxwriter.h>
#include <zip.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// A spreadsheet document: every table as its title, its header block, its
// column captions and its rows, one empty row between tables.
template <typename Taban>
class TabloBelgesi : public Taban
{
public:
    void Ekle(const RaporTablosu& tablo) override
    {
        if (m_tabloVar)
            Satir({}, false);
        m_tabloVar = true;
        Satir({tablo.baslik}, true);
        for (const KagitSatiri& kagitSatiri : tablo.ustBilgi) {
            QStringList hucreler;
            for (const TabMetin& tm : kagitSatiri)
                hucreler << tm.metin.trimmed();
            Satir(hucreler, false);
        }
        QStringList basliklar;
        for (const RaporSutunu& sutun : tablo.sutunlar)
            basliklar << sutun.baslik;
        Satir(basliklar, true);
        for (const RaporSatiri& satir : tablo.satirlar)
            Satir(satir.hucreler, false, tablo.sutunlar);
    }

    void Bitir() override
    {
        Kapat();
        m_dosya.Yerlestir(Tamam());
    }

protected:
    explicit TabloBelgesi(const QString& dosya) : m_dosya(dosya), m_gecici(m_dosya.Gecici()) {}

    Hata Yazilamadi(const QString& neden) const { return m_dosya.Yazilamadi(neden); }

    // One row of cells. A cell of a column whose sayi is set may go out as a
    // number; without columns every cell is text.
    virtual void Satir(const QStringList& hucreler, bool kalin, const QList<RaporSutunu>& sutunlar = {}) = 0;
    // Finishes writing into the temporary file.
    virtual void Kapat() = 0;
    // Whether the temporary file on disk is the whole document.
    virtual bool Tamam() const = 0;

    KullaniciDosyasi m_dosya;
    QTemporaryFile& m_gecici;
    bool m_tabloVar = false;  // the next table is not the first of its sheet
};

class CsvBelgesi : public TabloBelgesi<RaporBelgesi>
{
public:
    explicit CsvBelgesi(const QString& dosya) : TabloBelgesi<RaporBelgesi>(dosya)
    {
        // The mark tells a Turkish spreadsheet the text is UTF-8, not the
        // code page of the system.
        Yaz("\xEF\xBB\xBF");
    }

private:
    static QString Alan(const QString& hucre)
    {
        if (!hucre.contains(u';') && !hucre.contains(u'"') && !hucre.contains(u'\n') && !hucre.contains(u'\r'))
            return hucre;
        return u'"' + QString(hucre).replace(u'"', u"\"\""_s) + u'"';
    }

    void Yaz(const QByteArray& veri)
    {
        m_gecici.write(veri);
        m_yazilan += veri.size();
    }

    void Satir(const QStringList& hucreler, bool, const QList<RaporSutunu>&) override
    {
        QStringList alanlar;
        for (const QString& hucre : hucreler)
            alanlar << Alan(hucre);
        Yaz((alanlar.join(u';') + u"\r\n"_s).toUtf8());
    }

    void Kapat() override { m_gecici.close(); }

    // A write that failed on the way, in the buffer or at close, leaves the
    // file shorter than what was handed to it.
    bool Tamam() const override { return QFileInfo(m_gecici.fileName()).size() == m_yazilan; }

    qint64 m_yazilan = 0;
};

class XlsxBelgesi : public TabloBelgesi<RaporBelgeleri::XlsxKitabi>
{
public:
    explicit XlsxBelgesi(const QString& dosya)
        : TabloBelgesi<RaporBelgeleri::XlsxKitabi>(dosya), m_adi(QFile::encodeName(m_gecici.fileName())),
          m_klasor(QFile::encodeName(QFileInfo(dosya).absolutePath()))
    {
        m_gecici.close();
        // Rows go to disk as they are written, so a long walk keeps its
        // memory; the worksheet's own temporary file lies beside the target
        // rather than in a /tmp that may be held in memory.
        lxw_workbook_options secenekler = {};
        secenekler.constant_memory = LXW_TRUE;
        secenekler.tmpdir = m_klasor.data();
        m_kitap.reset(workbook_new_opt(m_adi.constData(), &secenekler));
        if (!m_kitap)
            throw Yazilamadi(u"çalışma kitabı açılamadı"_s);
        m_kalin = workbook_add_format(m_kitap.get());
        format_set_bold(m_kalin);
    }

    void YeniSayfa(const QString& ad, bool onde) override
    {
        SutunlariKapat();
        // A name may not hold []:*?/\ and has at most 31 characters.
        QString temiz = ad;
        for (const QChar c : u"[]:*?/\\"_s)
            temiz.replace(c, u'-');
        m_sayfa = workbook_add_worksheet(m_kitap.get(), temiz.left(31).toUtf8().constData());
        if (!m_sayfa)
            throw Yazilamadi(u"çalışma sayfası eklenemedi: "_s + ad);
        if (onde)
            worksheet_activate(m_sayfa);
        m_satir = 0;
        m_genislik.clear();
        m_tabloVar = false;
    }

    void Ekle(const RaporTablosu& tablo) override
    {
        if (!m_sayfa)
            YeniSayfa(u"Sayfa1"_s, false);
        if (m_genislik.size() < tablo.sutunlar.size())
            m_genislik.resize(tablo.sutunlar.size());
        for (qsizetype i = 0; i < tablo.sutunlar.size(); ++i)
            m_genislik[i] = std::max(m_genislik[i], tablo.sutunlar[i].genislik);
        TabloBelgesi::Ekle(tablo);
    }

private:
    // The format of an amount shows as many decimals as its text did, and
    // groups thousands unless the text was a bare count such as a sequence
    // number.
    lxw_format* SayiBicimi(const QString& hucre)
    {
        const qsizetype virgul = hucre.indexOf(u',');
        qsizetype ondalik = 0;
        while (virgul >= 0 && virgul + 1 + ondalik < hucre.size() && hucre[virgul + 1 + ondalik].isDigit())
            ++ondalik;
        QString desen = u"0"_s;
        if (ondalik > 0)
            desen = u"#,##0."_s + QString(ondalik, u'0');
        else if (hucre.contains(u'.') || virgul >= 0)
            desen = u"#,##0"_s;
        lxw_format*& bicim = m_sayiBicimleri[desen];
        if (!bicim) {
            bicim = workbook_add_format(m_kitap.get());
            format_set_num_format(bicim, desen.toUtf8().constData());
        }
        return bicim;
    }

    void Denetle(lxw_error sonuc) const
    {
        if (sonuc != LXW_NO_ERROR)
            throw Yazilamadi(QString::fromUtf8(lxw_strerror(sonuc)));
    }

    void Satir(const QStringList& hucreler, bool kalin, const QList<RaporSutunu>& sutunlar) override
    {
        for (qsizetype i = 0; i < hucreler.size(); ++i) {
            const QString& hucre = hucreler[i];
            if (hucre.trimmed().isEmpty())
                continue;
            const lxw_col_t sutun = lxw_col_t(i);
            const std::optional<double> sayi =
                i < sutunlar.size() && sutunlar[i].sayi ? SayiDegeri(hucre) : std::nullopt;
            if (sayi)
                Denetle(worksheet_write_number(m_sayfa, m_satir, sutun, *sayi, SayiBicimi(hucre)));
            else
                Denetle(worksheet_write_string(m_sayfa, m_satir, sutun, hucre.toUtf8().constData(),
                                               kalin ? m_kalin : nullptr));
        }
        ++m_satir;
    }

    // The widths of the sheet being written: twips to characters of the
    // default font, about 120 a character. A column without a width keeps
    // the default rather than hiding data.
    void SutunlariKapat()
    {
        for (qsizetype i = 0; i < m_genislik.size(); ++i)
            if (m_genislik[i] > 0)
                Denetle(worksheet_set_column(m_sayfa, lxw_col_t(i), lxw_col_t(i), m_genislik[i] / 120.0, nullptr));
    }

    void Kapat() override
    {
        if (!m_sayfa)
            YeniSayfa(u"Sayfa1"_s, false);
        SutunlariKapat();
        Denetle(workbook_close(m_kitap.release()));
    }

    bool Tamam() const override
    {
        int hata = 0;
        zip_t* zip = zip_open(m_adi.constData(), ZIP_RDONLY | ZIP_CHECKCONS, &hata);
        if (!zip)
            return false;
        const bool sayfaVar = zip_name_locate(zip, "xl/worksheets/sheet1.xml", 0) >= 0;
        zip_discard(zip);
        return sayfaVar;
    }

    const QByteArray m_adi;
    QByteArray m_klasor;
    // The library has no way to drop a workbook that frees its row file;
    // closing writes it under the temporary name, which goes with it.
    std::unique_ptr<lxw_workbook, lxw_error (*)(lxw_workbook*)> m_kitap{nullptr, workbook_close};
    lxw_worksheet* m_sayfa = nullptr;
    lxw_format* m_kalin = nullptr;
    QHash<QString, lxw_format*> m_sayiBicimleri;
    QList<int> m_genislik;
    lxw_row_t m_satir = 0;
};

}

namespace RaporBelgeleri {

std::unique_ptr<RaporBelgesi> Csv(const QString& dosya)
{
    return std::make_unique<CsvBelgesi>(dosya);
}

std::unique_ptr<XlsxKitabi> Xlsx(const QString& dosya)
{
    return std::make_unique<XlsxBelgesi>(dosya);
}

}
