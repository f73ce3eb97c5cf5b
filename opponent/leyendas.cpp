// Module LEYENDAS: the lines of ZEVA and of the table. The lines are the game's character, warm
// and teasing, and stand exactly as written here: accents, odd spellings ("min", "Abrou",
// "tudas", "querele") and blanks at the ends included. A line that ends in a blank shows two
// blanks before the chips text (" 7 Fichas"); that is how the game has always looked.
#include "opponent/leyendas.h"

#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "platform/rnd.h"
#include "platform/runtime.h"

void (*g_leyenda_screen)(bool Lado, const Fala& fala) = nullptr;

namespace {

// (as): with one chip the final "s" of the second line goes, so "pago as" becomes "pago a" and
// reads "pago a Ficha".
constexpr bool kAs = true;

struct Par {
  const char* Linha1;
  const char* Linha2;
  bool As = false;
};

// N 0 is a fixed key with its one pair. Otherwise the draw picks among the first N pairs; the
// pairs after the Nth are never spoken, but they belong to her repertoire and stay written.
struct Entrada {
  std::string_view Chave;
  int N;
  std::vector<Par> Linhas;
};

// clang-format off
const std::vector<Entrada> kLeyendas = {
    // Fixed keys. "PEDECARTAS" counts cards and is spoken in FalaDe itself.
    {"TROCARCARTAS", 0, {
        {"Sua Vez", "Indica Quais Cartas desejas Trocar, clicando-as com o mouse!"}}},
    {"JOGOEMPATADO", 0, {
        {"", "Incrível...!!! Temos o mesmo jogo Então, o Pote fica na mesa...!"}}},
    {"ELECUBRIUABRE", 0, {
        {"", "Cubro sua aposta da abertura de"}}},
    {"ELEAUMENTOUABRE", 0, {
        {"", "Aumento, Aposta da abertura mais"}}},
    {"ELEAUMENTOU", 0, {
        {"", "Aumento, Aposta com mais"}}},
    {"ELECUBRIUAPOSTA", 0, {
        {"Pago,", "Cubro a sua aposta de"}}},
    {"ELEAPOSTOU", 0, {
        {"Aposto,", "faço Aposta final de"}}},
    {"ELEAPOSTATUDO", 0, {
        {"", "Aposto tudo"}}},
    {"ELEPERDEU", 0, {
        {"", "Peninha, Ammor!, Você perdeu dessa vez"}}},
    {"ELEGANHOU", 0, {
        {"", "Ganhou!, então vai levar as"}}},
    {"EUGANHEI", 0, {
        {"", "Obrigada! Eu amo você, GANHEIII, "}}},
    {"EUPERDI", 0, {
        {"", "Parabéns! Você GANHOU de min, "}}},

    // Drawn keys.
    {"ABRIRJOGO", 4, {
        /* 1 */ {"Vai!,", "Abre o jogo"},
        /* 2 */ {"", "Desta vez, e você"},
        /* 3 */ {"", "Esta Pronto?, Você começa..."},
        /* 4 */ {"Fofo!", "se você quiser... abre"},
        /* 5 */ {"Amor", "diz para min, o valor desse jogo"}}},
    {"FAZERAPOSTA", 4, {
        /* 1 */ {"Vai!,", "Aposta, se quiser"},
        /* 2 */ {"", "Desta vez, e você"},
        /* 3 */ {"", "Esta Pronto?, Você faz aposta..."},
        /* 4 */ {"Fofo!", "se você quiser... faz aposta"},
        /* 5 */ {"Amor, aposta!", "diz para min, o valor desse jogo"}}},
    {"CUBRIRAPOSTA", 4, {
        /* 1 */ {"Vai!,", "Cubra aposta"},
        /* 2 */ {"", "Desta vez, e você que tem que cobrir!"},
        /* 3 */ {"", "Esta Pronto?, então cubra!"},
        /* 4 */ {"Fofo!", "se você quiser... cubra"},
        /* 5 */ {"Amor, cubra aposta!", "diz para min, o valor do teu jogo..."}}},
    {"ELEABRIU", 2, {
        /* 1 */ {"Vou,", "Abrir as Apostas com"},
        /* 2 */ {"", "Este jogo vai valer,"},
        /* 3 */ {"Inicio,", "as Apostas com"}}},
    {"ELEPASSOU", 3, {
        /* 1 */ {"Eh! ", "Perdeu a vez..."},
        /* 2 */ {"Amor, ", "Agora, Eu sei, você não está com nada"},
        /* 3 */ {"Entendi! ", "eu vou falar por você"},
        /* 4 */ {"Ahhh! de novo ", "quer que eu te mande!"}}},
    {"ELEDESISTIU", 4, {
        /* 1 */ {"Que pena ", "eu não tinha nada..."},
        /* 2 */ {"Amor, ", "Melhor sorte na próxima"},
        /* 3 */ {"Gatão, ", "Você me deixa sozinha!"},
        /* 4 */ {"Ahhh de novo ", "foi embora..."},
        /* 5 */ {"Fica comigo", "na próxima, vai ser bom!"}}},
    {"EUABRI", 6, {
        /* 1 */ {"Simm!,", "Abro o jogo, com"},
        /* 2 */ {"", "Desta vez, abro com"},
        /* 3 */ {"de mansinho,", "Eu vou começar, com"},
        /* 4 */ {"Fofo!", "vou iniciar mansinha, de"},
        /* 5 */ {"Amor!", " se quiser jogar... vai valer"},
        /* 6 */ {"", "Esse jogo vale"},
        /* 7 */ {"", "Abrou o jogo com"}}},
    {"EUPASSEI", 4, {
        /* 1 */ {"", "Amoor, Passo..."},
        /* 2 */ {"passo,", "Cedo a vez ao Cavalheiro"},
        /* 3 */ {"Nem acredito", ""},
        /* 4 */ {"", "Desculpa doce, não dá!"},
        /* 5 */ {"Com licença,", "Uma mocinha vai passar..."}}},
    {"EUAUMENTEIABRE", 5, {
        /* 1 */ {"", "Vou Aumentar essa Abertura, amor mais"},
        /* 2 */ {"Em qual jogo ", "estamos... Agora ?, Ta na hora de aumentar abertura, mais"},
        /* 3 */ {"", "Aumento Abertura mais um pouquinho com"},
        /* 4 */ {"Vamos Arriscar", "aumento essa abertura mais"},
        /* 5 */ {"Surpresa!... ", "Estou muita bem servida... então mais"},
        /* 6 */ {"", "Agora, Te Peguei, segura... vou com"}}},
    {"EUAPOSTEITUDO", 3, {
        /* 1 */ {"Vou Dar ", "Todinhas minhas"},
        /* 2 */ {"", "Aposto TUDO as"},
        /* 3 */ {"", "Estou botando tudas minhas fichas... as"},
        /* 4 */ {"Vou Arriscar ", "essa, amor, boto todo meu dinheiro as"}}},
    {"EUAPOSTEI", 9, {
        /*  1 */ {"Bem, amor ", "eu vou apostar... mais"},
        /*  2 */ {"Em qual jogo ", "estamos... Agora ? Ta na Hora de Apostar! mais"},
        /*  3 */ {"", "Uma Aposta pequenina mais"},
        /*  4 */ {"Vou Arriscar ", "Essa, amor, aposto mais um pouquinho!"},
        /*  5 */ {"Surpresa!... ", "Estou muita bem servida... Então Aposto mais"},
        /*  6 */ {"", "Agora, Te Peguei, segura... vou Apostar mais"},
        /*  7 */ {"Eu quero ", "Ver você todinho..., Aposto mais"},
        /*  8 */ {"Vou pagar ", "essa amor, Apostando mais"},
        /*  9 */ {"", "Segura Essa, Aposto mais"},
        /* 10 */ {"Nossa!, ", "Eu fique louca, Aposto mais"}}},
    {"EUAUMENTEI", 5, {
        /*  1 */ {"Vou AAAumentar ", "essa, amor mais"},
        /*  2 */ {"Em qual jogo ", "estamos... Agora ? Ta na Hora de Aumentar! com"},
        /*  3 */ {"", "Aumento mais um pouquinho mais"},
        /*  4 */ {"Vou Arriscar ", "Essa, amor, aumento mais um pouquinho mais"},
        /*  5 */ {"Surpresa!... ", "Estou muita bem servida... Então Aumento com"},
        /*  6 */ {"", "Agora, Te Peguei, segura... vou Aumentar mais"},
        /*  7 */ {"Eu quero", "Ver você todinho..., Aumentou mais"},
        /*  8 */ {"Vou pagar ", "Aumentando, amor com"},
        /*  9 */ {"Segura Essa, ", "Aumento a tua aposta mais"},
        /* 10 */ {"Nossa!, ", "Eu fique louca, Aumentou mais"}}},
    {"EUDESISTI", 5, {
        /* 1 */ {"Nossa!, ", "Você e louco"},
        /* 2 */ {"Eueee! ", "Muito grosso para min"},
        /* 3 */ {"Devagar, ", "Eu sou uma moça"},
        /* 4 */ {"", "Melhor não, OBRIGADA!..."},
        /* 5 */ {"Vou, Embora...", ""},
        /* 6 */ {"Verdade!", "Não tenho nada, "}}},
    {"EUCUBRI", 7, {
        /* 1 */ {"Vou Pagar ", "essa, amor de "},
        /* 2 */ {"Em qual jogo ", "estamos... Agora ? então pago as", kAs},
        /* 3 */ {"", "Estou pagando para ver... as", kAs},
        /* 4 */ {"Vou Arriscar ", "essa, amor, pago as", kAs},
        /* 5 */ {"", "Agora, Te Peguei, segura... vou"},
        /* 6 */ {"Eu quero ", "Ver você todinho..., Pago as", kAs},
        /* 7 */ {"Amor, ", "Cubro a sua aposta de"},
        /* 8 */ {"Vai devagar, ", "Eu sou uma moça, pago as", kAs}}},
    {"EUCUBRIABRE", 7, {
        /* 1 */ {"Eu pago, ", "se for verdade as", kAs},
        /* 2 */ {"", "Vou Arriscar, pago as", kAs},
        /* 3 */ {"", "Mumm!... que bom, estou dentro com"},
        /* 4 */ {"Gostoso,", "Esse meu jogo ta ótimo!, vou pagar as", kAs},
        /* 5 */ {"Estou aprendendo ", "a querele bem, vou pagar as", kAs},
        /* 6 */ {"Vou devagar, ", "eu sou uma moça, pago as", kAs},
        /* 7 */ {"", "Vou pagar essa!, amor, de"},
        /* 8 */ {"Amor, ", "Cubro essa abertura de"}}},
};
// clang-format on

const Entrada* Procurar(const std::string& Chave) {
  for (const Entrada& e : kLeyendas)
    if (e.Chave == Chave) return &e;
  return nullptr;
}

bool TerminaEm(const std::string& texto, std::string_view fim) {
  return texto.size() >= fim.size() &&
         texto.compare(texto.size() - fim.size(), fim.size(), fim) == 0;
}

}  // namespace

Fala FalaDe(bool Lado, const std::string& Chave, int Fichas) {
  Fala fala;
  fala.Nome = Lado ? "Poker (ZEVA)" : MeuNome;

  if (Chave == "PEDECARTAS") {
    // The count is the number of cards asked for, not chips: it is used up here.
    if (Fichas > 0) {
      fala.Linha1 = "Bem dessa vez,";
      fala.Linha2 = "Eu Vou ter que pedir " + vb::LongText(Fichas) +
                    (Fichas == 1 ? " Cartinha do Baralho" : " Cartinhas do Baralho");
    } else if (Lado) {
      fala.Linha1 = "Mnnn! Estou Servida...";
      fala.Linha2 = "Esse Meu Jogo esta Ótimo, acredita Amor";
    } else {
      fala.Linha2 = "Não Peço Cartas...";
    }
    Fichas = 0;
  } else if (const Entrada* e = Procurar(Chave)) {
    const Par* par = &e->Linhas.front();
    if (e->N > 0) {
      vb::Randomize(Semente);
      par = &e->Linhas[vb::DrawInt(e->N, 1) - 1];
    }
    fala.Linha1 = par->Linha1;
    fala.Linha2 = par->Linha2;
    if (Fichas == 1 && par->As) fala.Linha2.pop_back();
  }

  // The chips text follows any key, also one with no lines at all.
  if (Fichas > 1) {
    ((fala.Linha2 += ' ') += vb::LongText(Fichas)) += " Fichas";
  } else if (Fichas == 1) {
    fala.Linha2 += TerminaEm(fala.Linha2, " a") ? " Ficha" : " Uma Ficha";
  }
  return fala;
}

void Leyenda(bool Lado, const std::string& Chave, int Fichas) {
  const Fala fala = FalaDe(Lado, Chave, Fichas);
  if (g_leyenda_screen) g_leyenda_screen(Lado, fala);
}
