#include "support/sample_form.h"

#include <QDir>
#include <QFont>
#include <QImage>
#include <QPainter>

#include "platform/engine.h"
#include "platform/runtime.h"

namespace sample {
namespace {

constexpr std::uint32_t kFelt = 0x1A6802;

vb::Control& Add(vb::Form& f, vb::Kind kind, const std::string& name, vb::Control* parent,
                 int index, int left, int top, int width, int height) {
  vb::Control& c = f.Add(kind, name, parent, index);
  c.Left = left;
  c.Top = top;
  c.Width = width;
  c.Height = height;
  return c;
}

void Colour(vb::Control& c, std::uint32_t back, std::uint32_t fore = 0) {
  c.BackColor = back;
  c.HasBackColor = true;
  c.ForeColor = fore;
}

}  // namespace

SampleForm::SampleForm() {
  form.Caption = "PokerZEVA - Amostra";
  form.is_main = true;
  form.Width = 7500;
  form.Height = 5400;
  Colour(form, 0xC0C0C0);

  felt = &Add(form, vb::Kind::Frame, "FraMesa", nullptr, -1, 0, 0, 7380, 2760);
  Colour(*felt, kFelt);
  hand_label = &Add(form, vb::Kind::Label, "LabelManoMesa", felt, -1, 180, 135, 1500, 285);
  Colour(*hand_label, kFelt, 0xFF80FF);
  hand_label->font = {"Arial", 12, true};
  hand_label->Caption = "mão 1";
  chips_label = &Add(form, vb::Kind::Label, "LabelMesaFichas", felt, -1, 180, 480, 2400, 285);
  Colour(*chips_label, kFelt, 0xFFFF00);
  chips_label->Caption = "0 Fichas";

  chip_place = &Add(form, vb::Kind::PictureBox, "PicFichasPlayer", felt, 1, 3000, 120, 615, 615);
  chip_place->Picture = "extras/Ficha5";
  chip_place->TabIndex = 0;
  chip_place->accessible.name = "Ficha de 5";
  vb::Control& pot =
      Add(form, vb::Kind::Label, "LabelPlayerFichasPOT", chip_place, 1, 120, 120, 345, 375);
  pot.font = {"MS Sans Serif", 13.5, true};
  pot.ForeColor = 0x808000;
  pot.Caption = "05";
  chip_place->Click = [this] {
    ++chips;
    chips_label->Caption = std::to_string(chips) + " Fichas";
  };

  tiny_chip = &Add(form, vb::Kind::PictureBox, "PictureCoin", felt, 0, 4200, 300, 240, 90);
  tiny_chip->Picture = "extras/Ficha1";

  cards = &form.AddImageList("ImageListBarajas");
  cards->Add("barajas/AC", "AC", "1");
  cards->Add("barajas/KP", "KP", "2");
  toolbar = &Add(form, vb::Kind::Toolbar, "ToolbarPlayer", felt, -1, 0, 1080, 7380, 1590);
  toolbar->images = cards;
  toolbar->AddButton();
  toolbar->AddButton().SetImage("AC");
  toolbar->AddButton();
  toolbar->AddButton().SetImage("KP");
  toolbar->ButtonClick = [this](vb::ToolbarButton& b) {
    ++button_clicks;
    last_button = b.Index();
    b.SetValue(b.Value() == 1 ? 0 : 1);
  };
  vb::Control& line = Add(form, vb::Kind::Line, "Line1", felt, -1, 3000, 2700, 4200, 0);
  line.ForeColor = 0x808080;

  bar = &Add(form, vb::Kind::Frame, "FraApostaPlayer", nullptr, -1, 435, 2900, 6300, 330);
  Colour(*bar, 0xC0C0C0);
  pago = &Add(form, vb::Kind::CommandButton, "CmdPago", bar, -1, 45, 45, 1275, 225);
  Colour(*pago, 0x00FF00);
  pago->Caption = "&P A G O";
  pago->TabIndex = 1;
  pago->Click = [this] { ++pago_clicks; };
  acabei = &Add(form, vb::Kind::CommandButton, "CmdAcabei", bar, 0, 1380, 45, 1000, 225);
  Colour(*acabei, 0xFFFF00);
  acabei->Caption = "&Acabei";
  acabei->TabIndex = 2;
  acabei->Click = [this] {
    ++acabei_clicks;
    hand_label->Caption = "mão " + std::to_string(acabei_clicks + 1);
  };
  esperar = &Add(form, vb::Kind::CommandButton, "CmdEsperar", bar, -1, 2440, 45, 1300, 225);
  Colour(*esperar, 0x80FFFF);
  esperar->Caption = "E&sperar";
  esperar->TabIndex = 3;
  erro = &Add(form, vb::Kind::CommandButton, "CmdErro", bar, -1, 3800, 45, 1000, 225);
  Colour(*erro, 0xFFC080);
  erro->Caption = "E&rro";
  erro->TabIndex = 4;
  erro->Click = [this] {
    vb::Raise(vb::err::kElementNotFound);
    ++after_fault;
  };

  timer = &form.Add(vb::Kind::Timer, "TimerEspera");
  timer->TimerEvent = [this] { ++ticks; };
  // The wait of the game: three ticks of 100 ms, the screen alive meanwhile.
  esperar->Click = [this] {
    esperar->Enabled = false;
    chips_label->Caption = "Esperando...";
    ticks = 0;
    timer->Interval = 100;
    timer->Enabled = true;
    while (ticks < 3) vb::DoEvents();
    timer->Enabled = false;
    ++waits_done;
    chips_label->Caption = "Pronto";
    esperar->Enabled = true;
  };

  name_box = &Add(form, vb::Kind::TextBox, "TxtNome", nullptr, -1, 435, 3420, 3000, 300);
  name_box->TabIndex = 5;
  name_box->Text = "João";

  menu = &form.Add(vb::Kind::Menu, "MnuPopup");
  menu->Caption = "Popup";
  vb::Control& nova = form.Add(vb::Kind::Menu, "MnuNova", menu);
  nova.Caption = "&Nova mão";
  nova.Click = [this] { last_menu = "Nova"; };
  form.Add(vb::Kind::Menu, "MnuSep", menu).Caption = "-";
  vb::Control& ver = form.Add(vb::Kind::Menu, "MnuVerCartas", menu);
  ver.Caption = "&Ver cartas";
  ver.Click = [this, &ver] {
    ver.Checked = !ver.Checked;
    last_menu = "Ver";
  };
  vb::Control& off = form.Add(vb::Kind::Menu, "MnuCarregar", menu);
  off.Caption = "&Carregar";
  off.Enabled = false;
  felt->MouseDown = [this](int button, int) {
    if (button != 2) return;
    ++right_clicks;
    vb::Engine::Get().PopupMenu(*menu);
  };
}

void WriteSampleImages(const QString& folder) {
  auto draw = [&](const QString& id, QSize size, auto paint) {
    for (int scale : {1, 2}) {
      QImage img(size * scale, QImage::Format_ARGB32_Premultiplied);
      img.fill(Qt::transparent);
      QPainter p(&img);
      p.setRenderHint(QPainter::Antialiasing);
      p.scale(scale, scale);
      paint(p);
      p.end();
      const QString path = folder + QLatin1Char('/') + id +
                           (scale == 2 ? QStringLiteral("@2x.png") : QStringLiteral(".png"));
      QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
      img.save(path);
    }
  };
  auto card = [&](const QString& code, QColor ink) {
    draw(QStringLiteral("barajas/") + code, QSize(71, 96), [&](QPainter& p) {
      p.setPen(QPen(Qt::black, 1));
      p.setBrush(Qt::white);
      p.drawRoundedRect(QRectF(0.5, 0.5, 70, 95), 5, 5);
      QFont f(QStringLiteral("Liberation Sans"));
      f.setPixelSize(22);
      f.setBold(true);
      p.setFont(f);
      p.setPen(ink);
      p.drawText(QRect(0, 0, 71, 96), Qt::AlignCenter, code);
    });
  };
  card(QStringLiteral("AC"), Qt::red);
  card(QStringLiteral("KP"), Qt::black);
  auto chip = [&](const QString& id, QColor colour) {
    draw(id, QSize(32, 32), [&](QPainter& p) {
      p.setPen(QPen(Qt::white, 3, Qt::DashLine));
      p.setBrush(colour);
      p.drawEllipse(QRectF(2, 2, 28, 28));
    });
  };
  chip(QStringLiteral("extras/Ficha5"), QColor(200, 30, 30));
  chip(QStringLiteral("extras/Ficha1"), QColor(30, 30, 200));
  // A pile of chips seen from the side, for the stack strips.
  draw(QStringLiteral("potes/F05_03"), QSize(81, 37), [&](QPainter& p) {
    p.setPen(Qt::white);
    p.setBrush(QColor(200, 30, 30));
    for (int i = 0; i < 3; ++i) p.drawEllipse(QRectF(20, 24 - 8 * i, 40, 12));
  });
}

}  // namespace sample
