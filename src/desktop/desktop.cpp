#include "desktop/desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>

#include "core/error.h"
#include "desktop/form_window.h"
#include "desktop/printing.h"
#include "desktop/report_preview.h"
#include "print/render.h"
#include "print/spreadsheet.h"
#include "store/data_folder.h"
#include "store/database.h"

namespace mz::desktop {
namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

Date to_date(const QDateTime& t) {
  return Date::from_ymd_hms(t.date().year(), t.date().month(), t.date().day(), t.time().hour(), t.time().minute(),
                            t.time().second());
}

}  // namespace

Desktop::Desktop(const ui::Program& program) : program_(program) { program_.register_screens(runtime_); }

Desktop::~Desktop() {
  ending_ = true;  // windows going away move the focus: nothing is left to bring in line
  windows_.clear();
  for (const QPointer<FormWindow>& closed : closed_) delete closed.data();  // still waiting for the event loop
}

void Desktop::start() {
  try {
    program_.start(runtime_);
  } catch (const Error& e) {
    return report_failure(e);
  }
  sync();
}

void Desktop::report_failure(const Error& failure) {
  wait_pointer(false);
  message_box("Erro " + std::to_string(failure.number()) + ": " + failure.what(), ui::Buttons::Ok, ui::Icon::Critical,
              "Mostruz");
  sync();
}

FormWindow* Desktop::window(const ui::Form& form) const {
  auto it = windows_.find(&form);
  return it == windows_.end() ? nullptr : it->second.get();
}

void Desktop::sync() {
  if (ending_) return;
  for (auto& [form, window] : windows_) window->refresh();
  if (in_dialog_) return;
  // The screen the runtime has in front takes the keyboard, also one with no
  // field to focus (the main screen answers its F-keys).
  ui::Control* focused = runtime_.focused();
  ui::Form* front = focused ? &focused->form() : runtime_.active_form();
  FormWindow* w = front ? window(*front) : nullptr;
  if (!w) return;
  if (!w->isActiveWindow()) {
    w->raise();
    w->activateWindow();
  }
  QWidget* target = focused ? w->widget(*focused) : nullptr;
  if (target && QApplication::focusWidget() != target) target->setFocus(Qt::OtherFocusReason);
}

// A modal dialog; while it is up, the runtime's focus is not pushed onto
// the screens behind it.
int Desktop::exec_dialog(QDialog& dialog) {
  ++in_dialog_;
  struct Leave {
    int& depth;
    ~Leave() { --depth; }
  } leave{in_dialog_};
  return dialog.exec();
}

ui::Answer Desktop::message_box(const std::string& text, ui::Buttons buttons, ui::Icon icon, const std::string& title) {
  QMessageBox box;
  box.setWindowTitle(q(title));
  box.setText(q(text));
  switch (icon) {
    case ui::Icon::Information: box.setIcon(QMessageBox::Information); break;
    case ui::Icon::Question: box.setIcon(QMessageBox::Question); break;
    case ui::Icon::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case ui::Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    case ui::Icon::None: break;
  }
  QMessageBox::StandardButtons set = QMessageBox::Ok;
  if (buttons == ui::Buttons::OkCancel) set = QMessageBox::Ok | QMessageBox::Cancel;
  if (buttons == ui::Buttons::YesNo) set = QMessageBox::Yes | QMessageBox::No;
  if (buttons == ui::Buttons::YesNoCancel) set = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  box.setStandardButtons(set);
  if (auto* yes = box.button(QMessageBox::Yes)) yes->setText("&Sim");
  if (auto* no = box.button(QMessageBox::No)) no->setText("&Não");
  if (auto* cancel = box.button(QMessageBox::Cancel)) cancel->setText("Cancelar");
  const int answer = exec_dialog(box);
  switch (answer) {
    case QMessageBox::Yes: return ui::Answer::Yes;
    case QMessageBox::No: return ui::Answer::No;
    case QMessageBox::Cancel: return ui::Answer::Cancel;
    default: return ui::Answer::Ok;
  }
}

std::optional<std::string> Desktop::input_box(const std::string& prompt, const std::string& title,
                                              const std::string& initial) {
  bool ok = false;
  ++in_dialog_;
  QString text = QInputDialog::getText(nullptr, q(title), q(prompt), QLineEdit::Normal, q(initial), &ok);
  --in_dialog_;
  if (!ok) return std::nullopt;
  return text.toStdString();
}

std::optional<std::string> Desktop::choose_printer() {
  QPrinter printer;
  if (!printer_.isEmpty()) printer.setPrinterName(printer_);
  QPrintDialog dialog(&printer);
  dialog.setWindowTitle("Imprimir");
  const int answer = exec_dialog(dialog);
  if (answer != QDialog::Accepted) return std::nullopt;
  printer_ = printer.printerName();
  return printer_.toStdString();
}

std::optional<std::string> Desktop::choose_file(const std::string& title, const std::string& filter) {
  QFileDialog dialog(nullptr, q(title), QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilter(q(filter));
  if (exec_dialog(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return QFile::encodeName(dialog.selectedFiles().front()).toStdString();
}

void Desktop::print_document(const print::PrintedDocument& document) {
  print_pages(print::lay_out_printed(document), printer_);
}

void Desktop::show_report(const print::ReportRequest& request, const print::Document& document) {
  switch (request.destination) {
    case print::Destination::Window: preview(document); break;
    case print::Destination::Printer: print_pages(document, printer_); break;
    case print::Destination::File: save_to_file(request, document); break;
  }
}

void Desktop::preview(const print::Document& document) {
  ReportPreview dialog(document, [&] { print_pages(document, printer_); });
  exec_dialog(dialog);
  if (dialog.failure()) std::rethrow_exception(dialog.failure());
}

// A file the user names: a PDF of the pages, or a spreadsheet of the list.
void Desktop::save_to_file(const print::ReportRequest& request, const print::Document& document) {
  const char* suffix = request.spreadsheet ? "xlsx" : "pdf";
  QFileDialog dialog(nullptr, "Salvar como", QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(request.spreadsheet ? "Planilha (*.xlsx)" : "PDF (*.pdf)");
  dialog.setDefaultSuffix(suffix);
  dialog.selectFile(
      q(std::filesystem::path(print::template_name(request)).replace_extension(std::string(".") + suffix).string()));
  const int answer = exec_dialog(dialog);
  if (answer != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const std::string path = QFile::encodeName(dialog.selectedFiles().front()).toStdString();
  if (request.spreadsheet) print::write_spreadsheet(document, path);
  else print::write_pdf(document, path);
}

void Desktop::send_to_port(const std::string& bytes) {
  // The printer's port as a plain file, as the dot-matrix tickets always went.
  const char* port = std::getenv("MOSTRUZ_PORTA");
  QFile file(port ? port : "/dev/usb/lp0");
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append) ||
      file.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size()))
    throw Error(57, "Erro de E/S no dispositivo: " + file.fileName().toStdString());
}

bool Desktop::previous_instance() {
  if (!instance_lock_) {
    instance_lock_ = std::make_unique<QLockFile>(QDir::temp().filePath("mostruz.lock"));
    instance_lock_->tryLock(0);
  }
  return !instance_lock_->isLocked();
}

Date Desktop::today() { return now().date_only(); }
Date Desktop::now() { return to_date(QDateTime::currentDateTime()); }

std::pair<int, int> Desktop::display_size() {
  QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  return {area.width(), area.height()};
}

void Desktop::screen_shown(ui::Form& form) {
  auto& w = windows_[&form];
  if (!w) {
    w = std::make_unique<FormWindow>(*this, form);
    // A screen that centred itself is centred as it is drawn, not as declared.
    if (form.left || form.top) {
      QRect area = QGuiApplication::primaryScreen()->availableGeometry();
      QSize size = w->sizeHint().boundedTo(area.size());
      w->move(area.x() + std::max(0, (area.width() - size.width()) / 2),
              area.y() + std::max(0, (area.height() - size.height()) / 2));
    }
  }
  const QSize area = QGuiApplication::primaryScreen()->availableGeometry().size();
  const QSize hint = w->sizeHint();
  if (w->has_grid() || hint.width() > area.width() || hint.height() > area.height()) w->showMaximized();
  else w->show();
}

void Desktop::screen_closed(ui::Form& form) {
  auto it = windows_.find(&form);
  if (it == windows_.end()) return;
  it->second->hide();
  std::erase_if(closed_, [](const QPointer<FormWindow>& closed) { return closed.isNull(); });
  closed_.emplace_back(it->second.get());
  it->second.release()->deleteLater();  // the window may be inside its own event
  windows_.erase(it);
}

void Desktop::wait_pointer(bool on) {
  if (on == waiting_) return;
  waiting_ = on;
  if (on) QApplication::setOverrideCursor(Qt::WaitCursor);
  else QApplication::restoreOverrideCursor();
}

void Desktop::end_program() { QApplication::quit(); }

void Desktop::start_program(const std::string& program) {
  QProcess::startDetached(q((store::Workspace::folder() / program).string()), {});
}

bool ShopApplication::notify(QObject* receiver, QEvent* event) {
  if (!desktop) return QApplication::notify(receiver, event);
  try {
    return QApplication::notify(receiver, event);
  } catch (const Error& e) {
    desktop->report_failure(e);
    return true;
  }
}

int run_desktop(int argc, char** argv, const std::filesystem::path& folder, const ui::Program& program) {
  ShopApplication app(argc, argv);
  store::prepare_shop_folder(folder);
  store::Workspace::set_folder(folder);
  Desktop desktop(program);
  app.desktop = &desktop;
  struct Untrap {
    ShopApplication& app;
    ~Untrap() { app.desktop = nullptr; }  // the desktop goes before the application
  } untrap{app};
  desktop.start();
  if (QApplication::topLevelWidgets().isEmpty() || desktop.runtime().ended()) return 0;  // no main screen came up
  return app.exec();
}

}  // namespace mz::desktop
