#include "sound/musicas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/app_path.h"
#include "platform/mci.h"
#include "platform/rnd.h"

namespace {

using Textos = std::vector<std::string>;

const std::string kPrograma = "C:\\ZEVA\\BIN";

class SoundDoor : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProcess();
    vb::SetAppPath(kPrograma);
  }
  void TearDown() override {
    vb::ScriptRnd({});
    vb::SetAppPath(".");
  }

  // The commands one call sends; the folder must be back at the program's folder afterwards.
  static Textos Envia(const std::string& tipo, const std::string& chave,
                      const std::string& comando = "") {
    vb::ClearMciSent();
    Musicas(tipo, chave, comando);
    EXPECT_EQ(vb::CurDir(), kPrograma) << tipo << " " << chave << " " << comando;
    return vb::MciSent();
  }
};

TEST_F(SoundDoor, ChipsRattleFourTimes) {
  const std::string fichas = "Play MUSICAS\\EFEITOS\\FICHAS.WAV";
  EXPECT_EQ(Envia("EFEITOS", "FICHAS", "PLAY"), (Textos{fichas, fichas, fichas, fichas}));
}

TEST_F(SoundDoor, RefusedCommandSendsNothingAndLeavesTheFolderChanged) {
  struct Caso {
    const char* tipo;
    const char* comando;
  };
  for (const Caso& c : {Caso{"MELODIAS", "PAUSE"}, Caso{"MELODIAS", "Pause"}, Caso{"MELODIAS", ""},
                        Caso{"TRILHAS", "OPEN"}, Caso{"TRILHAS", ""}, Caso{"MELODIAS", "pLAY"},
                        Caso{"TRILHAS", "close"}}) {
    SCOPED_TRACE(std::string(c.tipo) + " " + c.comando);
    vb::ClearMciSent();
    vb::ChDir(kPrograma);
    Musicas(c.tipo, c.tipo[0] == 'T' ? "1" : "ABRE", c.comando);
    EXPECT_TRUE(vb::MciSent().empty());
    EXPECT_EQ(vb::CurDir(), kPrograma + "\\..");
  }
}

TEST_F(SoundDoor, SoundPathsResolveBesideTheProgramFolder) {
  // The player resolves the path while the command arrives, inside the call.
  vb::SetAppPath("/jogo/bin");
  std::string arquivo;
  vb::InstallMciSink([&arquivo](const std::string& comando) {
    arquivo = vb::ResolvePath(comando.substr(comando.find(' ') + 1));
  });
  Musicas("EFEITOS", "CARTAINI");
  vb::InstallMciSink(nullptr);
  EXPECT_EQ(arquivo, "/jogo/MUSICAS/EFEITOS/CARTAINI.WAV");
  EXPECT_EQ(vb::CurDir(), "/jogo/bin");
}

TEST_F(SoundDoor, ShuffleMelodyCycle) {
  const std::string pasta = " MUSICAS\\MELODIAS\\";
  // 0 (effects just switched on) plays the first and becomes 1.
  EXPECT_EQ(Envia("MELODIAS", "BARAJANDO", "PLAY"), Textos{"Play" + pasta + "BARAJANDO1.WAV"});
  EXPECT_EQ(TocandoEfeito, 1);
  TocandoEfeito = 9;
  EXPECT_EQ(Envia("MELODIAS", "BARAJANDO", "STOP"), Textos{"Stop" + pasta + "BARAJANDO1.WAV"});
  EXPECT_EQ(TocandoEfeito, 1);

  // Each Close names the melody that played, then draws Int(Rnd x 9) for the next one:
  // 5 or 8 the third, 1 the second, anything else the first.
  struct Passo {
    float rnd;
    int proximo;
  };
  const std::vector<Passo> passos = {{5.5f / 9, 3},    {1.5f / 9, 2},          {8.5f / 9, 3},
                                     {0.0f, 1},        {1.0f / 9 + 0.001f, 2}, {4.5f / 9, 1},
                                     {0.99999994f, 3}, {2.5f / 9, 1},          {6.5f / 9, 1},
                                     {7.5f / 9, 1},    {3.5f / 9, 1}};
  int tocando = 1;
  for (const Passo& p : passos) {
    SCOPED_TRACE(p.rnd);
    vb::ScriptRnd({p.rnd});
    EXPECT_EQ(Envia("MELODIAS", "BARAJANDO", "CLOSE"),
              Textos{"Close" + pasta + "BARAJANDO" + std::to_string(tocando) + ".WAV"});
    EXPECT_EQ(TocandoEfeito, p.proximo);
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
    tocando = p.proximo;
  }

  // Play and Stop draw nothing; nor does the Close of another melody.
  vb::ScriptRnd({0.5f});
  Envia("MELODIAS", "BARAJANDO", "PLAY");
  Envia("MELODIAS", "BARAJANDO", "STOP");
  Envia("MELODIAS", "ABRE", "CLOSE");
  Envia("TRILHAS", "1", "CLOSE");
  EXPECT_EQ(vb::ScriptedRndLeft(), 1u);
  EXPECT_EQ(TocandoEfeito, tocando);
}

TEST_F(SoundDoor, ShuffleDrawReseedsWithSemente) {
  Semente = 4;
  vb::SetRndState(99);
  vb::Randomize(Semente);
  vb::Rnd();
  const auto depois = vb::RndState();
  vb::SetRndState(99);
  Envia("MELODIAS", "BARAJANDO", "CLOSE");
  EXPECT_EQ(vb::RndState(), depois);  // one reseed, one draw
  EXPECT_FLOAT_EQ(Semente, 4.0f);
}

}  // namespace
