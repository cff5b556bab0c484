#include "app/window1.h"

namespace app {

void Window1::wireSolve() {
  PushButton41->Action = [this] { PushButton41_Action(); };
  EditA->TextChange = [this] { EditA_TextChange(); };
  EditB->TextChange = [this] { EditB_TextChange(); };
  EditC->TextChange = [this] { EditC_TextChange(); };

  PushButton45->Action = [this] { PushButton45_Action(); };
  A1->KeyDown = [this](const QString& key) { return A1_KeyDown(key); };
  B1->KeyDown = [this](const QString& key) { return B1_KeyDown(key); };
  C1->KeyDown = [this](const QString& key) { return C1_KeyDown(key); };
  D2->KeyDown = [this](const QString& key) { return D2_KeyDown(key); };
  E2->KeyDown = [this](const QString& key) { return E2_KeyDown(key); };
  F2->KeyDown = [this](const QString& key) { return F2_KeyDown(key); };
}

}  // namespace app
