#include "ui/map/MapFiles.h"

#include <filesystem>
#include <utility>

#include <QFile>
#include <QImageReader>

#include "base/FileBytes.h"
#include "map/AdjustmentFile.h"
#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class MapFilesTest : public GformFixture {
protected:
    void SetUp() override { Open(880, 620); }

    void Write(const char* name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(QLatin1StringView(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray Read(const char* name) const
    {
        QFile file(folder.filePath(QLatin1StringView(name)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    void Link(const char* target, const char* name, bool hard) const
    {
        const std::string from = folder.filePath(QLatin1StringView(target)).toStdString();
        const std::string to = folder.filePath(QLatin1StringView(name)).toStdString();
        hard ? std::filesystem::create_hard_link(from, to)
             : std::filesystem::create_symlink(from, to);
    }

    void Remove(const char* name) const
    {
        EXPECT_TRUE(QFile::remove(folder.filePath(QLatin1StringView(name))));
    }

    bool Exists(const char* name) const
    {
        return QFile::exists(folder.filePath(QLatin1StringView(name)));
    }

    const map::ReferenceTable& Table() const { return state.map.references; }

    QString Said(std::size_t index) const { return dialogs.said.at(index).text; }
};

constexpr const char* kFewReferences = "Fehler: mindestens 3 gültige Referenzpunkte erforderlich!";

TEST_F(MapFilesTest, LoadDialogOffersPicturesAndStartsInTheLastFolder)
{
    state.configuration.lastMapFolder = "/tmp";
    Choose("MnuGLoad");  // cancelled
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_TRUE(dialogs.asked[0].filter.startsWith(
        u"Bilder (*.jpg;*.gif)|*.jpg;*.jpeg;*.gif|alle Dateien (*.*)|*.*|"_s));
    EXPECT_EQ(dialogs.asked[0].folder, u"/tmp"_s);
    EXPECT_FALSE(state.map.mapImage);
    EXPECT_TRUE(image.Empty());
}

TEST_F(MapFilesTest, LoadDialogOffersEveryPictureThatCanBeRead)
{
    Choose("MnuGLoad");
    const QStringList parts = dialogs.asked.at(0).filter.split(u'|');
    ASSERT_EQ(parts.size() % 2, 0);
    QStringList patterns;
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        patterns << parts[i].split(u';');
    }
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        EXPECT_EQ(patterns.count(u"*."_s + QString::fromLatin1(format)), 1) << format.data();
    }
    EXPECT_EQ(parts.indexOf(u"*.png"_s), 5) << "behind the usual ones";
}

TEST_F(MapFilesTest, LoadingRemembersNameAndFolder)
{
    const QString file = MapFile(300, 200);
    LoadMap(file);
    EXPECT_EQ(state.map.imageName, file.toStdString());
    EXPECT_EQ(state.configuration.lastImage, file.toStdString());
    EXPECT_EQ(state.configuration.lastMapFolder, folder.path().toStdString());
    EXPECT_TRUE(state.map.mapImage);
}

TEST_F(MapFilesTest, LoadsJpegAndGifAndPng)
{
    LoadMap(MapFile(300, 200, "karte.jpg"));
    EXPECT_EQ(image.Size(), (map::ImageSize{300, 200}));
    LoadMap(MapFile(310, 210, "karte.jpeg"));
    EXPECT_EQ(image.Size(), (map::ImageSize{310, 210}));
    LoadMap(MapFile(320, 220, "karte.png"));
    EXPECT_EQ(image.Size(), (map::ImageSize{320, 220}));
    // One white pixel, 1 x 1.
    Write("karte.gif",
          QByteArray::fromHex("47494638396101000100800000ffffff00000021f90400000000002c"
                              "00000000010001000002024401003b"));
    LoadMap(folder.filePath(u"karte.gif"_s));
    EXPECT_EQ(image.Size(), (map::ImageSize{1, 1}));
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(MapFilesTest, MapWithoutCompanionsIsTheWholeWorld)
{
    state.map.references.AddStation2Reference(1, 2, {3, 4});
    LoadMap(MapFile(300, 200));
    EXPECT_FALSE(Table().ReferenceMode());
    EXPECT_EQ(Table().RefCount(), 0);
    EXPECT_TRUE(Table().Entries().empty());
    EXPECT_EQ(state.map.bounds, (map::InfBounds{-80.0, 80.0, -180.0, 180.0}));
    EXPECT_EQ(state.map.edges, (map::EdgeCoordinates{
                                   .left = -180.0, .right = 180.0, .upper = 80.0, .lower = -80.0}));
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(MapFilesTest, CalibrationFileGivesTheEdges)
{
    Write("karte.INF", "48.15.00N, 011.30.00E\r\n48.00.00N, 012.00.00E\r\nkarte.png\r\n");
    LoadMap(MapFile(300, 200));
    EXPECT_EQ(state.map.edges,
              (map::EdgeCoordinates{.left = 11.5, .right = 12.0, .upper = 48.25, .lower = 48.0}));
    EXPECT_FALSE(Table().ReferenceMode());
    Choose("MnuRefInf");
    ASSERT_EQ(Table().RefCount(), 4);
    EXPECT_EQ(Table().Entries().size(), 5U);
    EXPECT_TRUE(Table().ReferenceMode());
    EXPECT_EQ(Table().Points()[3],
              (map::ReferencePoint{.X = 300, .Y = 200, .Longitude = 12.0, .Latitude = 48.0}));
}

TEST_F(MapFilesTest, AdjustmentIsSavedAndFoundAgain)
{
    const QString file = MapFile(300, 200);
    LoadMap(file);
    Choose("MnuRefInf");
    Choose("MnuClrLast");
    const std::vector<map::ReferencePoint> points(Table().Points().begin(), Table().Points().end());
    Choose("MnuStoJ");
    EXPECT_TRUE(dialogs.said.empty());
    const base::ByteVector expected = map::PackAdjustment(Table(), image.Size());
    EXPECT_EQ(Read("karte.JUS"), QByteArray(reinterpret_cast<const char*>(expected.data()),
                                            static_cast<qsizetype>(expected.size())));
    Choose("MnuClrAll");
    LoadMap(file);
    EXPECT_TRUE(Table().ReferenceMode());
    EXPECT_EQ(std::vector(Table().Points().begin(), Table().Points().end()), points);
    EXPECT_EQ(Table().Entries().size(), 5U) << "the whole array is kept";
    EXPECT_TRUE(Item("MnuRast")->isEnabled());
}

TEST_F(MapFilesTest, TwoReferencesAreTooFewForEitherFile)
{
    LoadMap(MapFile(300, 200));
    Choose("MnuRefInf");
    Choose("MnuClrLast");
    Choose("MnuClrLast");
    Choose("MnuStoJ");
    Choose("MnuInf");
    ASSERT_EQ(dialogs.said.size(), 2U);
    EXPECT_EQ(Said(0), QString::fromUtf8(kFewReferences));
    EXPECT_EQ(Said(1), QString::fromUtf8(kFewReferences));
    EXPECT_FALSE(Exists("karte.JUS"));
    EXPECT_FALSE(Exists("karte.INF"));
}

TEST_F(MapFilesTest, ThreeReferencesAreEnough)
{
    LoadMap(MapFile(300, 200));
    Choose("MnuRefInf");
    Choose("MnuClrLast");
    Choose("MnuStoJ");
    Choose("MnuInf");
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_TRUE(Exists("karte.JUS"));
    EXPECT_TRUE(Exists("karte.INF"));
}

TEST_F(MapFilesTest, ExistingCalibrationFileIsReplacedOnlyWhenTheUserSaysSo)
{
    Write("karte.INF", "48.15.00N, 011.30.00E\r\n48.00.00N, 012.00.00E\r\n");
    const QByteArray old = Read("karte.INF");
    const QString file = MapFile(300, 200);
    LoadMap(file);
    Choose("MnuRefInf");
    dialogs.answers = {false};
    Choose("MnuInf");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0], (ScriptedDialogs::Message{u"INF Datei erzeugen"_s,
                                                         u"Datei existiert bereits. Löschen?"_s}));
    EXPECT_EQ(Read("karte.INF"), old);
    dialogs.answers = {true};
    Choose("MnuInf");
    EXPECT_EQ(Read("karte.INF"),
              "48.15.00N, 011.30.00E\r\n48.00.00N, 012.00.00E\r\n" + file.toUtf8() + "\r\n");
}

TEST_F(MapFilesTest, OtherSpellingOfACompanionIsTheCompanion)
{
    Write("karte.inf", "48.15.00N, 011.30.00E\r\n48.00.00N, 012.00.00E\r\n");
    LoadMap(MapFile(300, 200));
    EXPECT_EQ(state.map.bounds.firstLatitude, 48.25);
    Choose("MnuRefInf");
    dialogs.answers = {true};
    Choose("MnuInf");
    EXPECT_EQ(dialogs.said.size(), 1U) << "asked about";
    EXPECT_FALSE(Exists("karte.INF"));
}

TEST_F(MapFilesTest, DamagedAdjustmentIsToldAndLeftAlone)
{
    const QByteArray damaged(300, 'x');
    Write("karte.JUS", damaged);
    LoadMap(MapFile(300, 200));
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(Said(0).contains(u"karte.JUS ist beschädigt"_s)) << Said(0).toStdString();
    EXPECT_TRUE(state.map.mapImage);
    EXPECT_FALSE(Table().ReferenceMode());
    EXPECT_EQ(Read("karte.JUS"), damaged);

    Choose("MnuRefInf");
    Choose("MnuStoJ");
    EXPECT_EQ(Read("karte.JUS.ALT"), damaged) << "set aside before it is replaced";
    EXPECT_NE(Read("karte.JUS"), damaged);
    Choose("MnuStoJ");
    EXPECT_FALSE(Exists("karte.JUS.ALT2")) << "what the program wrote is replaced";
}

TEST_F(MapFilesTest, AdjustmentOfAnotherPictureSizeIsLoadedAndTold)
{
    const QString file = MapFile(300, 200);
    LoadMap(file);
    Choose("MnuRefInf");
    Choose("MnuStoJ");
    MapFile(400, 100);
    LoadMap(file);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(Said(0).contains(u"300 x 200"_s));
    EXPECT_TRUE(Said(0).contains(u"400 x 100"_s));
    EXPECT_EQ(Table().RefCount(), 4);
}

TEST_F(MapFilesTest, PictureThatCannotBeLoadedLeavesEverythingAsItWas)
{
    const QString good = MapFile(300, 200);
    LoadMap(good);
    Choose("MnuRefInf");
    const QImage before = Picture();
    Write("text.jpg", "kein Bild");
    Write("leer.gif", "");
    QImage cut(200, 200, QImage::Format_RGB32);
    cut.fill(Qt::red);
    ASSERT_TRUE(cut.save(folder.filePath(u"kurz.png"_s)));
    Write("kurz.png", Read("kurz.png").left(60));
    for (const char* const name : {"kurz.jpg", "kurz.bmp"}) {
        ASSERT_TRUE(cut.save(folder.filePath(QLatin1StringView(name))));
        const QByteArray whole = Read(name);
        Write(name, whole.left(whole.size() * 9 / 10));
    }
    // One white pixel, and no trailer.
    Write("kurz.gif", QByteArray::fromHex("47494638396101000100800000ffffff00000021f90400000000002c"
                                          "0000000001000100000202440100"));
    for (const char* const name :
         {"text.jpg", "leer.gif", "kurz.png", "kurz.jpg", "kurz.bmp", "kurz.gif", "fehlt.jpg"}) {
        SCOPED_TRACE(name);
        dialogs.said.clear();
        LoadMap(folder.filePath(QLatin1StringView(name)));
        ASSERT_EQ(dialogs.said.size(), 1U);
        EXPECT_TRUE(Said(0).contains(u"lässt sich nicht lesen"_s));
        EXPECT_EQ(state.map.imageName, good.toStdString());
        EXPECT_EQ(Table().RefCount(), 4);
        EXPECT_EQ(Picture(), before);
    }
}

TEST_F(MapFilesTest, PictureWithTooLongAnEdgeIsRefused)
{
    LoadMap(MapFile(32768, 1));
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(Said(0).contains(u"32767"_s));
    EXPECT_TRUE(image.Empty());
    dialogs.said.clear();
    LoadMap(MapFile(32767, 1));
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_EQ(image.Size().width, 32767);
}

TEST_F(MapFilesTest, NameWithoutADotHasNoCompanions)
{
    QFile::rename(MapFile(300, 200), folder.filePath(u"karte"_s));
    LoadMap(folder.filePath(u"karte"_s));
    EXPECT_TRUE(state.map.mapImage);
    Choose("MnuRefInf");
    Choose("MnuStoJ");
    Choose("MnuInf");
    EXPECT_EQ(dialogs.said.size(), 2U);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"karte"_s));
}

TEST_F(MapFilesTest, LoadingStartsAtTheUpperLeftCornerWithoutRoute)
{
    LoadMap(MapFile(2000, 1500));
    form->pane->HScroll1->setValue(300);
    form->pane->VScroll1->setValue(200);
    Choose("MnuRefInf");
    Choose("MnuRast");
    Choose("MnuRouS");
    ClickAt(10, 10);
    LoadMap(MapFile(2100, 1600, "zweite.png"));
    EXPECT_EQ(form->pane->HScroll1->value(), 0);
    EXPECT_EQ(form->pane->VScroll1->value(), 0);
    EXPECT_FALSE(Checked("MnuRast"));
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteStart);
}

TEST_F(MapFilesTest, CompanionThatIsALinkDoesNotReplaceTheProgramsOwnFiles)
{
    const QString file = MapFile(300, 200);
    LoadMap(file);
    Choose("MnuRefInf");
    const QByteArray kept("die Stationen");
    Write("WORK.QTH", kept);
    Write("WORK.BAK", kept);
    Write("KOMP_LOC.CFG", kept);
    const auto own = [this](const char* name) {
        return folder.filePath(QLatin1StringView(name)).toStdString();
    };
    state.configuration.workingFile = own("WORK.QTH");
    state.session.backupName = own("WORK.BAK");
    state.session.configurationName = own("KOMP_LOC.CFG");
    dialogs.answers = {true, true, true, true, true, true};
    for (const char* const name : {"WORK.QTH", "WORK.BAK", "KOMP_LOC.CFG"}) {
        for (const bool hard : {false, true}) {
            for (const auto& [companion, item] :
                 {std::pair("karte.JUS", "MnuStoJ"), std::pair("karte.INF", "MnuInf")}) {
                SCOPED_TRACE(testing::Message() << name << ' ' << companion << ' ' << hard);
                Link(name, companion, hard);
                dialogs.said.clear();
                Choose(item);
                EXPECT_EQ(Read(name), kept);
                EXPECT_EQ(Read(companion), kept);
                ASSERT_EQ(dialogs.said.size(), 1U);
                EXPECT_TRUE(Said(0).contains(u"benutzt das Programm selbst"_s));
                EXPECT_EQ(dialogs.parents.back(), form.get());
                Remove(companion);
            }
        }
    }
}

TEST_F(MapFilesTest, CompanionThatIsThePictureDoesNotReplaceIt)
{
    const struct {
        const char* name;
        const char* item;
    } cases[] = {{"karte.JUS", "MnuStoJ"}, {"karte.inf", "MnuInf"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QFile::rename(MapFile(300, 200, "bild.png"), folder.filePath(QLatin1StringView(c.name)));
        const QByteArray picture = Read(c.name);
        dialogs.said.clear();
        LoadMap(folder.filePath(QLatin1StringView(c.name)));
        EXPECT_TRUE(dialogs.said.empty()) << "a picture is no damaged companion";
        Choose("MnuRefInf");
        dialogs.answers = {true};
        Choose(c.item);
        EXPECT_EQ(Read(c.name), picture);
        ASSERT_EQ(dialogs.said.size(), 1U);
        EXPECT_TRUE(Said(0).contains(u"ist das Bild der Karte"_s)) << Said(0).toStdString();
        Remove(c.name);
    }
}

TEST_F(MapFilesTest, CompanionsThatAreOneFileDoNotReplaceEachOther)
{
    LoadMap(MapFile(300, 200));
    Choose("MnuRefInf");
    Choose("MnuInf");
    const QByteArray calibration = Read("karte.INF");
    Link("karte.INF", "karte.JUS", false);
    Choose("MnuStoJ");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(Said(0).contains(u"karte.JUS ist zugleich die INF-Datei"_s));
    dialogs.answers = {true};
    Choose("MnuInf");
    ASSERT_EQ(dialogs.said.size(), 2U);
    EXPECT_TRUE(Said(1).contains(u"karte.INF ist zugleich die Justagedatei"_s));
    EXPECT_EQ(Read("karte.INF"), calibration);
}

TEST_F(MapFilesTest, FileUnderTheNameOfACalibrationIsSetAside)
{
    LoadMap(MapFile(300, 200));
    Choose("MnuRefInf");
    const QByteArray foreign("[Setup]\r\nSignature=$CHICAGO$\r\n");
    Write("karte.INF", foreign);
    dialogs.answers = {true, true};
    Choose("MnuInf");
    EXPECT_EQ(Read("karte.INF.ALT"), foreign);
    EXPECT_TRUE(Read("karte.INF").startsWith("80.00.00S"));
    Choose("MnuInf");
    EXPECT_FALSE(Exists("karte.INF.ALT2")) << "what the program wrote is replaced";
}

TEST_F(MapFilesTest, PointsOnOneLineDoNotWriteACalibration)
{
    Write("karte.INF", "48.15.00N, 011.30.00E\r\n48.00.00N, 012.00.00E\r\n");
    const QByteArray good = Read("karte.INF");
    LoadMap(MapFile(300, 200));
    for (const int x : {0, 100, 200}) {
        state.map.references.AddStation2Reference(x, x, {48.0 - 0.001 * x, 11.0 + 0.001 * x});
    }
    dialogs.answers = {true};
    Choose("MnuInf");
    EXPECT_EQ(Read("karte.INF"), good);
    ASSERT_EQ(dialogs.said.size(), 1U) << "nothing is asked";
    EXPECT_TRUE(Said(0).contains(u"keine Position"_s)) << Said(0).toStdString();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
              (QStringList{u"karte.INF"_s, u"karte.png"_s}));
}

TEST_F(MapFilesTest, WriteErrorIsTold)
{
    LoadMap(MapFile(300, 200));
    Choose("MnuRefInf");
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"karte.JUS"_s));
    Choose("MnuStoJ");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0].title, u"Schreibfehler"_s);
}

}  // namespace
}  // namespace ui
