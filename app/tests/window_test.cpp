// The table's window on the desktop: the one factor that scales it, where it opens, how it
// follows its window, its close box during the shuffle, and how it looks.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "core/deck.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "front/front.h"
#include "front/qt_host.h"
#include "front/scaling.h"
#include "platform/engine.h"
#include "platform/settings.h"
#include "table/frm_barajando.h"
#include "table/frm_principal.h"

namespace {

TEST(Scaling, OneFactorFitsTheTableToItsWindowAndScreen) {
  const QSize table(662, 476);
  struct Case {
    QSize client;
    double scale;
  };
  const Case fits[] = {
      {{662, 476}, 1.0},  {{1324, 952}, 2.0}, {{2000, 952}, 2.0},  // wider: felt at the sides
      {{993, 2000}, 1.5}, {{100, 100}, 0.5},                       // never below the least
  };
  for (const Case& c : fits) EXPECT_DOUBLE_EQ(front::FitScale(c.client, table), c.scale);

  // Opening: the largest that fits nine tenths of the free area, the frame included.
  const QMargins frame(4, 30, 4, 4);
  struct Screen {
    QRect available;
    double scale;
  };
  const Screen screens[] = {
      {{0, 0, 1280, 1024}, (1280 * 0.9 - 8) / 662.0},
      {{0, 0, 1920, 1050}, (1050 * 0.9 - 34) / 476.0},
      {{0, 0, 3840, 2160}, (2160 * 0.9 - 34) / 476.0},
      {{0, 0, 640, 512}, (640 * 0.9 - 8) / 662.0},  // 1280x1024 at Qt's scale 2
  };
  for (const Screen& s : screens) {
    const double scale = front::OpeningScale(table, s.available, frame);
    EXPECT_NEAR(scale, s.scale, 0.005) << s.available.width();
    EXPECT_LE((table * scale).grownBy(frame).width(), s.available.width());
    EXPECT_LE((table * scale).grownBy(frame).height(), s.available.height());
  }

  // Placing: centred, moved inside the screen, never off it.
  const QRect screen(0, 0, 1280, 1024);
  EXPECT_EQ(front::PlaceWithin({400, 300}, screen, screen), QRect(440, 362, 400, 300));
  EXPECT_EQ(front::PlaceWithin({400, 300}, {-200, -100, 100, 100}, screen).topLeft(), QPoint(0, 0));
  EXPECT_EQ(front::PlaceWithin({400, 300}, {1200, 1000, 100, 100}, screen).bottomRight(),
            screen.bottomRight());
  EXPECT_EQ(front::PlaceWithin({1400, 300}, screen, screen).width(), 1280);

  // Edge to edge: neighbours meet at any scale.
  for (double s : {1.0, 1.37, 2.5}) {
    const front::Span a = front::Scaled(0, 705, s);
    const front::Span b = front::Scaled(705, 15, s);
    EXPECT_EQ(a.start + a.length, b.start) << s;
  }
}

class TableWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    vb::Engine::Get().Reset();
    vb::InstallSettings(&settings);
    host = std::make_unique<front::QtHost>();
    screen = std::make_unique<front::Front>();
    ValoresIniciais();
  }
  void TearDown() override {
    DestruirFormularios();
    screen.reset();
    host.reset();
    vb::Engine::Get().Reset();
    vb::InstallSettings(nullptr);
  }
  vb::MemorySettings settings;
  std::unique_ptr<front::QtHost> host;
  std::unique_ptr<front::Front> screen;
};

TEST_F(TableWindowTest, TheTableOpensOnItsScreenAndFollowsItsWindow) {
  FrmPrincipal& f = Frm_Principal();
  vb::Engine::Get().Show(f);
  front::FormWindow* win = screen->WindowOf(f);
  ASSERT_NE(win, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(win));
  const QRect available = win->screen()->availableGeometry();
  EXPECT_TRUE(available.contains(win->geometry())) << win->geometry().x();
  EXPECT_GT(win->scale(), 1.0);  // larger than the old fixed window on any screen it fits

  // Twice the size: every control twice as far and as large, the table centred in the felt.
  win->SetScale(1.0);
  const QRect card = screen->WidgetOf(f.PicCartasPlayer(2))->geometry();
  win->resize(win->base().width() * 2 + 100, win->base().height() * 2);
  QTest::qWait(20);
  EXPECT_DOUBLE_EQ(win->scale(), 2.0);
  const QRect twice = screen->WidgetOf(f.PicCartasPlayer(2))->geometry();
  EXPECT_NEAR(twice.x(), 2 * card.x(), 1);
  EXPECT_NEAR(twice.width(), 2 * card.width(), 1);
  EXPECT_EQ(win->stage()->x(), 50);
  EXPECT_EQ(screen->WidgetOf(f.LabelMesaFichas)->font().pixelSize(), 22);  // 8.25 pt twice

  // The shuffle box belongs to the table: above it, centred on it, at its scale.
  win->SetScale(0.8);
  front::FormWindow* box = nullptr;
  QTimer::singleShot(150, [&] {
    box = screen->WindowOf(Frm_Barajando());
    if (!box) return;
    EXPECT_EQ(box->parentWidget(), win);
    EXPECT_DOUBLE_EQ(box->scale(), 0.8);
    EXPECT_NEAR(box->frameGeometry().center().x(), win->frameGeometry().center().x(), 2);
  });
  Embaralhar(NroCartas);
  EXPECT_NE(box, nullptr);
}

TEST_F(TableWindowTest, ClosingTheTableDuringTheShuffleEndsTheGameAndSavesTheSeed) {
  EXPECT_EXIT(
      {
        FrmPrincipal& f = Frm_Principal();
        f.Unload = [this](int& cancel) {
          Form_Unload(cancel);
          std::fprintf(stderr, "seed saved: %s\n",
                       settings.Get("Trevim", "Ramdomize", "Seed").c_str());
        };
        vb::Engine::Get().Show(f);
        QTimer::singleShot(500, [&] {
          if (!Frm_Barajando().Loaded()) return;
          screen->WidgetOf(f)->close();  // the window's close box, as the player presses it
        });
        Embaralhar(NroCartas);
        std::fprintf(stderr, "the game went on\n");
        std::_Exit(4);
      },
      testing::ExitedWithCode(0), "seed saved: -?[0-9]+");
}

// The table as the screenshot tool draws it matches the picture kept with the tests, but for a
// few shades of antialiasing and type.
TEST(TableShot, TheTableLooksAsItDid) {
  QTemporaryDir out;
  QProcess shots;
  shots.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  shots.start(QStringLiteral(POKERZEVA_BINARY_DIR "/bin/pokerzeva-table-shots"),
              {out.path(), QStringLiteral("--child")});
  ASSERT_TRUE(shots.waitForFinished(60000));
  const QImage shot(out.path() + QStringLiteral("/table_normal_x1.png"));
  const QImage golden(QStringLiteral(POKERZEVA_SOURCE_DIR "/app/tests/golden/table_normal.png"));
  ASSERT_FALSE(golden.isNull());
  ASSERT_EQ(shot.size(), golden.size());
  long off = 0;
  for (int y = 0; y < shot.height(); ++y)
    for (int x = 0; x < shot.width(); ++x) {
      const QRgb a = shot.pixel(x, y), b = golden.pixel(x, y);
      const int d = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                              std::abs(qBlue(a) - qBlue(b))});
      off += d > 48;
    }
  // Text is the only thing drawn by the machine's fonts: a few percent at most.
  EXPECT_LT(off, shot.width() * shot.height() / 50) << off;
}

}  // namespace
