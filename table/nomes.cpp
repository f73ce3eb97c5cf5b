#include "table/nomes.h"

#include <array>
#include <utility>

#include "chips/chips.h"
#include "table/frm_barajando.h"
#include "table/frm_principal.h"

namespace {

constexpr std::array<std::pair<char, const char*>, 13> kValores = {{
    {'A', "Ás"},
    {'K', "Rei"},
    {'Q', "Dama"},
    {'J', "Valete"},
    {'D', "Dez"},
    {'9', "Nove"},
    {'8', "Oito"},
    {'7', "Sete"},
    {'6', "Seis"},
    {'5', "Cinco"},
    {'4', "Quatro"},
    {'3', "Três"},
    {'2', "Dois"},
}};
constexpr std::array<std::pair<char, const char*>, 4> kNaipes = {{
    {'C', "Copas"},
    {'D', "Ouros"},
    {'P', "Espadas"},
    {'T', "Paus"},
}};

template <std::size_t N>
const char* Procurar(const std::array<std::pair<char, const char*>, N>& tabela, char letra) {
  for (const auto& [chave, nome] : tabela)
    if (chave == letra) return nome;
  return nullptr;
}

const char* Lado(bool Poker) {
  return Poker ? "ZEVA" : "Você";
}

void Ocultar(vb::Control& c) {
  c.accessible.hidden = true;
}

}  // namespace

std::string NomeCarta(std::string_view code) {
  if (code.size() != 2) return std::string();
  const char* valor = Procurar(kValores, code[0]);
  const char* naipe = Procurar(kNaipes, code[1]);
  if (!valor || !naipe) return std::string();
  return std::string(valor) + " de " + naipe;
}

std::string NomeImagemCarta(const std::string& key) {
  if (key == "FRENTE" || key == "DORSO") return "Carta virada";
  return NomeCarta(key);
}

std::string NomePilha(bool Poker, const vb::ToolbarButton& button) {
  for (const Denominacao& d : kDenominacoes) {
    if (button.Key() != d.chave) continue;
    const int n = button.ImageKey().empty() ? 0 : ContagemPilha(button);
    const std::string valor = std::to_string(d.valor);
    std::string pilha;
    if (n == 0) {
      pilha = "nenhuma ficha de " + valor;
    } else {
      pilha = std::to_string(n) + (n == 1 ? " ficha de " : " fichas de ") + valor;
    }
    return std::string(Lado(Poker)) + ": " + pilha;
  }
  return std::string();
}

void NomearControles(FrmPrincipal& f) {
  // Layout: every frame and toolbar hands its controls to its container; lines, the focus bars,
  // the figures printed on the chip and card places, and the debugging line say nothing.
  for (const auto& c : f.controls()) {
    switch (c->kind()) {
      case vb::Kind::Frame:
      case vb::Kind::Toolbar:
      case vb::Kind::Shape:
      case vb::Kind::Line:
        Ocultar(*c);
        break;
      default:
        break;
    }
  }
  Ocultar(f.LblMusicTime);
  for (int i = 0; i < 4; ++i) {
    Ocultar(f.LabelPlayerFichasPOT(i));
    Ocultar(f.LabelPokerFichasPOT(i));
    Ocultar(f.PicFichasPoker(i));  // her pile beside it says it all
    f.PicFichasPlayer(i).accessible.name =
        "Apostar uma ficha de " + std::to_string(kDenominacoes[i].valor);
  }

  // Cards: by what each place shows; the player's marked ones say so.
  f.ToolbarPoker.accessible.button_namer = [](const vb::ToolbarButton& b) {
    return NomeImagemCarta(b.ImageKey());
  };
  f.ToolbarBaraja.accessible.button_namer = f.ToolbarPoker.accessible.button_namer;
  f.ToolbarPlayer.accessible.button_namer = [](const vb::ToolbarButton& b) {
    std::string nome = NomeImagemCarta(b.ImageKey());
    if (!nome.empty() && !b.Enabled()) nome += ", marcada para a troca";
    return nome;
  };
  for (int i = 0; i < 5; ++i) {
    Ocultar(f.LabelPlayerCartasROT(i));
    f.PicCartasPlayer(i).accessible.namer = [&f, i](const vb::Control&) {
      const std::string carta = f.ToolbarPlayer.AccessibleName(f.ToolbarPlayer.Button(2 * (i + 1)));
      const std::string lugar = "Carta " + std::to_string(i + 1);
      return carta.empty() ? lugar : lugar + ": " + carta;
    };
  }

  // Piles by side.
  f.ToolbarPokerCoins.accessible.button_namer = [](const vb::ToolbarButton& b) {
    return NomePilha(true, b);
  };
  f.ToolbarPlayerCoins.accessible.button_namer = [](const vb::ToolbarButton& b) {
    return NomePilha(false, b);
  };

  // Chips on the table, by their value; who put them there is the row they stand in.
  const auto ficha = [](const char* onde) {
    return [onde](const vb::Control& c) { return "Ficha de " + c.Tag.get() + " " + onde; };
  };
  for (const auto& [i, c] : f.PictureCoin.items()) c->accessible.namer = ficha("no pote");
  for (const auto& [i, c] : f.PicturePokerCoin.items())
    c->accessible.namer = ficha("apostada por ZEVA");
  for (const auto& [i, c] : f.PicturePlayerCoin.items())
    c->accessible.namer = ficha("apostada por você");

  f.PicturePokerFace.accessible.name = "Rosto de ZEVA";
  f.PicturePlayerFace.accessible.name = "Seu rosto";
  f.PicturePokerMensagem.accessible.name = "Balão de fala de ZEVA";
  f.PictureMão.accessible.namer = [&f](const vb::Control& c) {
    if (c.Picture.get().empty()) return std::string();
    return c.Picture.get() == f.ImageListExtras.PictureOf("SetaAcima") ? std::string("Mão de ZEVA")
                                                                       : std::string("Sua mão");
  };

  // Her words and the message at the end of a hand are read out when they change.
  for (int i = 1; i <= 2; ++i) f.LabelPokerCaption(i).accessible.live = true;
  f.LabelPokerMensagem.accessible.live = true;
}

void NomearControles(FrmBarajando& f) {
  f.accessible.name = "Baralhando as cartas";
  for (const auto& [i, c] : f.PictureMaxo.items()) Ocultar(*c);
  Ocultar(f.LabelBaralhando);  // the title says it, spaced out letter by letter
}
