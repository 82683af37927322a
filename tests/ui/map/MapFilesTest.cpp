#include "ui/map/MapFiles.h"

#include <QFile>

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
    state.configuration.textSetting3 = "/tmp";
    Choose("MnuGLoad");  // cancelled
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].filter,
              u"Bilder (*.jpg;*.gif)|*.jpg;*.jpeg;*.gif|alle Dateien (*.*)|*.*"_s);
    EXPECT_EQ(dialogs.asked[0].folder, u"/tmp"_s);
    EXPECT_FALSE(state.map.mapImage);
    EXPECT_TRUE(image.Empty());
}

TEST_F(MapFilesTest, LoadingRemembersNameAndFolder)
{
    const QString file = MapFile(300, 200);
    LoadMap(file);
    EXPECT_EQ(state.map.imageName, file.toStdString());
    EXPECT_EQ(state.configuration.textSetting2, file.toStdString());
    EXPECT_EQ(state.configuration.textSetting3, folder.path().toStdString());
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
    for (const char* const name : {"text.jpg", "leer.gif", "kurz.png", "fehlt.jpg"}) {
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
    form->HScroll1->setValue(300);
    form->VScroll1->setValue(200);
    Choose("MnuRefInf");
    Choose("MnuRast");
    Choose("MnuRouS");
    ClickAt(10, 10);
    LoadMap(MapFile(2100, 1600, "zweite.png"));
    EXPECT_EQ(form->HScroll1->value(), 0);
    EXPECT_EQ(form->VScroll1->value(), 0);
    EXPECT_FALSE(Checked("MnuRast"));
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteStart);
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
