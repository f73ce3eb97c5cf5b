#include "session/dialogs.h"

#include <cfloat>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

#include "core/game_state.h"
#include "table/frm_principal.h"

namespace {

// Every dialog is a small window of the same make. A counting dialog: the number in a frame, the
// ranks or the chips it makes in a second frame beside it when the dialog has one, and under them
// the button that steps it. Twips.
constexpr int kLargura = 5400;

template <class F>
void Contagem(F& f, const char* caption) {
  f.Caption = caption;
  f.Move(0, 0, kLargura, 2550);
  f.Frame1.Move(240, 180, 1680, 1050);
  f.Label1.Move(60, 150, 1560, 780);
  f.Label1.font.size = 24;
  f.Label1.font.bold = true;
  if constexpr (requires { f.Label2; }) {
    f.Frame2.Move(2100, 180, 3060, 1050);
    f.Label2.Move(90, 150, 2880, 780);
    f.Label2.font.size = 10;
  } else {
    f.Frame1.SetLeft((kLargura - f.Frame1.Width) / 2 - 60);
  }
  f.Command1.Move(1680, 1440, 1800, 420);
  f.Command1.Caption = "&M u d a r";
  f.Command1.TabIndex = 0;
  f.Activate = [&f] { f.Form_Activate(); };
  f.Command1.Click = [&f] { f.Command1_Click(); };
  f.Unload = [&f](int&) { f.Form_Unload(); };
}

// A dialog that asks for a text: the box in a frame, named for the player's reader.
template <class F>
void Texto(F& f, const char* caption, const char* nome) {
  f.Caption = caption;
  f.Move(0, 0, kLargura, 1500);
  f.Frame1.Move(240, 180, 4680, 705);
  f.Text1.Move(120, 180, 4440, 405);
  f.Text1.font.size = 12;
  f.Text1.TabIndex = 0;
  f.Text1.accessible.name = nome;
  f.Activate = [&f] { f.Form_Activate(); };
  f.Unload = [&f](int&) { f.Form_Unload(); };
}

// The ranks of a full deck as Label2 names them; a stripped deck drops the lowest, four cards a
// rank.
constexpr const char* kValores[] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};

bool Branco(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f';
}

bool Digito(char c) {
  return c >= '0' && c <= '9';
}

// [+-]?(digits(.digits*)?|.digits+), nothing else.
bool NumeroSimples(std::string_view s) {
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  std::size_t inteiros = 0, decimais = 0;
  while (i < s.size() && Digito(s[i])) ++i, ++inteiros;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && Digito(s[i])) ++i, ++decimais;
  }
  return i == s.size() && (inteiros > 0 || decimais > 0);
}

}  // namespace

// --- the deck size ------------------------------------------------------------------------------

FrmNumerodeCartas::FrmNumerodeCartas() : vb::Form("FrmNumerodeCartas") {
  Contagem(*this, "   Numero de Cartas do Baralho");
}

void FrmNumerodeCartas::Mostrar() {
  Label1.Caption = std::to_string(Cartas);
  std::string valores;
  for (std::size_t v = (52 - Cartas) / 4; v < std::size(kValores); ++v)
    valores += std::string(kValores[v]) + " ";
  Label2.Caption = valores + "AS ";
}

void FrmNumerodeCartas::Form_Activate() {
  Cartas = NroCartas;
  Mostrar();
}

void FrmNumerodeCartas::Command1_Click() {
  Cartas = Cartas <= 20 ? 52 : Cartas - 4;
  Mostrar();
}

void FrmNumerodeCartas::Form_Unload() {
  NroCartas = Cartas;
}

// --- the chips each side starts with -------------------------------------------------------------

FrmNumerodeFichas::FrmNumerodeFichas() : vb::Form("FrmNumerodeFichas") {
  Contagem(*this, "   Numero de Fichas para cada Jogador");
}

void FrmNumerodeFichas::Mostrar() {
  Label1.Caption = std::to_string(Fichas);
  // The same count of each of the four chips makes the stack: 66 a set of one of each.
  const std::string c = std::to_string(Fichas / 66);
  Label2.Caption = "(" + c + "=1) (" + c + "=5) (" + c + "=10) (" + c + "=50)";
}

void FrmNumerodeFichas::Form_Activate() {
  Fichas = NroFichas;
  Mostrar();
}

void FrmNumerodeFichas::Command1_Click() {
  Fichas = Fichas >= 990 ? 330 : Fichas + 330;
  Mostrar();
}

void FrmNumerodeFichas::Form_Unload() {
  NroFichas = Fichas;
}

// --- how many cards may be exchanged -------------------------------------------------------------

FrmQuantasCartas::FrmQuantasCartas() : vb::Form("FrmQuantasCartas") {
  Contagem(*this, "  Quantas Cartas pode Trocar do Baralho ?");
}

void FrmQuantasCartas::Form_Activate() {
  Troca = MaxTroca;
  Label1.Caption = std::to_string(Troca);
}

void FrmQuantasCartas::Command1_Click() {
  Troca = Troca == 0 ? 5 : Troca - 1;
  Label1.Caption = std::to_string(Troca);
}

void FrmQuantasCartas::Form_Unload() {
  MaxTroca = Troca;
}

// --- the value of a chip -------------------------------------------------------------------------

float LerValorFicha(const std::string& texto) {
  std::string s = texto;
  for (char& c : s)
    if (c == ',') c = '.';
  std::size_t inicio = 0, fim = s.size();
  while (inicio < fim && Branco(s[inicio])) ++inicio;
  while (fim > inicio && Branco(s[fim - 1])) --fim;
  s = s.substr(inicio, fim - inicio);
  if (!NumeroSimples(s)) return 5.0f;
  // Read the same whatever the machine's locale says of decimal points.
  double valor = 0.0;
  if (s.front() == '+') s.erase(0, 1);
  if (std::from_chars(s.data(), s.data() + s.size(), valor).ec == std::errc::result_out_of_range) {
    // Beyond a Double: too large when a digit before the point is not zero, else too small to be
    // anything but zero to a Single.
    const std::string_view inteiros(s.data(),
                                    s.find('.') == std::string::npos ? s.size() : s.find('.'));
    if (inteiros.find_first_not_of("-0") != std::string_view::npos) vb::Raise(vb::err::kOverflow);
    valor = 0.0;
  }
  // A Single holds up to its largest value and half a step beyond, which still rounds down to it.
  const double limite = static_cast<double>(FLT_MAX) + std::ldexp(1.0, 103);
  if (!(std::fabs(valor) < limite)) vb::Raise(vb::err::kOverflow);
  return static_cast<float>(valor);
}

FrmValordaFicha::FrmValordaFicha() : vb::Form("FrmValordaFicha") {
  Texto(*this, "  Valor da Ficha ? (em Reais)", "Valor da ficha, em reais");
}

void FrmValordaFicha::Form_Activate() {
  Valor = ValorFicha;
  Text1.Text = vb::FormatMoney(Valor);
}

void FrmValordaFicha::Form_Unload() {
  Valor = LerValorFicha(Text1.Text);
  ValorFicha = Valor;
}

// --- the player's name ---------------------------------------------------------------------------

frmMeuNome::frmMeuNome() : vb::Form("frmMeuNome") {
  Texto(*this, "   Meu NOME e ?", "Seu nome");
}

void frmMeuNome::Form_Activate() {
  Nome = MeuNome;
  Text1.Text = Nome;
}

void frmMeuNome::Form_Unload() {
  Nome = Text1.Text;
  MeuNome = Nome.empty() ? "Challenger" : Nome;
}

FrmNumerodeCartas& Frm_NumerodeCartas() {
  return FormularioDoJogo<FrmNumerodeCartas>();
}
FrmNumerodeFichas& Frm_NumerodeFichas() {
  return FormularioDoJogo<FrmNumerodeFichas>();
}
FrmQuantasCartas& Frm_QuantasCartas() {
  return FormularioDoJogo<FrmQuantasCartas>();
}
FrmValordaFicha& Frm_ValordaFicha() {
  return FormularioDoJogo<FrmValordaFicha>();
}
frmMeuNome& Frm_MeuNome() {
  return FormularioDoJogo<frmMeuNome>();
}
