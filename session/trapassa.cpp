#include "session/trapassa.h"

#include <string>

#include "table/frm_principal.h"

FrmTrapassa::FrmTrapassa() : vb::Form("FrmTrapassa") {
  Caption = "  Deseja Jogar Com TRAPASSA ?";
  Move(0, 0, 5400, 1800);
  Label2.Move(240, 180, 4800, 285);
  Label2.Caption = "Então, Dê a Senha da Trapassa";
  Text1.Move(240, 540, 4800, 405);
  Text1.font.size = 12;
  Text1.TabIndex = 0;
  Text1.accessible.name = "Senha da Trapassa";
  Unload = [this](int&) { Form_Unload(); };
  Form_Initialize();
}

void FrmTrapassa::Form_Initialize() {
  Text1.Text = "Eu Não Sei...";
}

void FrmTrapassa::Form_Unload() {
  auto& f = Frm_Principal();
  if (Text1.Text.get() == kSenhaTrapassa) {
    for (vb::Control* m : {&f.MnuVerBaralho, &f.MnuVerCartas}) {
      m->Visible = true;
      m->Enabled = true;
      m->Checked = false;
    }
  } else {
    for (vb::Control* m : {&f.MnuVerBaralho, &f.MnuVerCartas}) {
      m->Checked = false;
      m->Enabled = false;
      m->Visible = false;
    }
    Text1.Text = "Eu acho que não";
  }
}

FrmTrapassa& Frm_Trapassa() {
  return FormularioDoJogo<FrmTrapassa>();
}
