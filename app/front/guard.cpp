#include "front/guard.h"

#include <QApplication>
#include <QMessageBox>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "platform/runtime.h"

namespace front {
namespace {

bool g_faulted = false;
FaultReporter g_reporter;

// The number the old runtime gave to an error it could not name.
constexpr int kInternalError = 51;

[[noreturn]] void ShowAndEnd(int number, const std::string& message) {
  std::fprintf(stderr, "%s\n", FaultText(number, message).c_str());
  if (QApplication::instance()) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("PokerZEVA"),
                    QString::fromStdString(FaultText(number, message)), QMessageBox::Ok);
    box.exec();
  }
  std::fflush(nullptr);
  std::_Exit(1);
}

void Report(int number, const std::string& message) {
  g_faulted = true;
  if (g_reporter) {
    g_reporter(number, message);
  } else {
    ShowAndEnd(number, message);
  }
}

}  // namespace

std::string FaultText(int number, const std::string& message) {
  return "Erro em tempo de execução '" + std::to_string(number) + "':\n\n" + message;
}

void SetFaultReporter(FaultReporter reporter) {
  g_reporter = std::move(reporter);
}
bool Faulted() {
  return g_faulted;
}
void ClearFault() {
  g_faulted = false;
}

bool Guarded(const std::function<void()>& call) {
  if (g_faulted) return false;
  try {
    call();
    return true;
  } catch (const vb::RuntimeError& e) {
    Report(e.number(), e.what());
  } catch (const std::exception& e) {
    Report(kInternalError, std::string("Erro interno (") + e.what() + ")");
  } catch (...) {
    Report(kInternalError, "Erro interno");
  }
  return false;
}

}  // namespace front
