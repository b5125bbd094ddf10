#include "platform/controls.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QPalette>
#include <QPlainTextEdit>
#include <QVariant>
#include <algorithm>

namespace orrivane::controls {

QColor To_QColor(unsigned colour) {
  const QPalette palette = QApplication::palette();
  switch (colour) {
    case colours::kActiveTitleText: return palette.color(QPalette::Active, QPalette::HighlightedText);
    case kWindowBackground: return palette.color(QPalette::Base);
    case kButtonFace: return palette.color(QPalette::Button);
    case kGrayText: return palette.color(QPalette::Disabled, QPalette::WindowText);
    case kButtonText: return palette.color(QPalette::ButtonText);
    // A shade darker than a button's face, as the trough of a scroll bar stands.
    case colours::kScrollBars: return palette.color(QPalette::Button).darker(115);
    default: return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
  }
}

QString Array_Name(const char* name, int index) { return QString("%1(%2)").arg(name).arg(index); }

void Set_Caption(QLabel* label, const std::string& caption) { label->setText(QString::fromStdString(caption)); }

std::string Caption(const QLabel* label) { return label->text().toStdString(); }

namespace {

void Apply(QWidget* widget, QPalette::ColorRole role, const char* property, unsigned colour) {
  widget->setProperty(property, QVariant::fromValue(colour));
  QPalette palette = widget->palette();
  palette.setColor(role, To_QColor(colour));
  widget->setPalette(palette);
  if (role == QPalette::Window) widget->setAutoFillBackground(true);
}

// Owned by the control it watches.
class GotFocus : public QObject {
 public:
  GotFocus(QWidget* control, std::function<void()> procedure) : QObject(control), procedure_(std::move(procedure)) {
    control->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) procedure_();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> procedure_;
};

unsigned Read(const QWidget* widget, const char* property, unsigned fallback) {
  const QVariant v = widget->property(property);
  return v.isValid() ? v.value<unsigned>() : fallback;
}

}  // namespace

void Set_Fore_Color(QWidget* widget, unsigned colour) { Apply(widget, QPalette::WindowText, "ForeColor", colour); }
void Set_Back_Color(QWidget* widget, unsigned colour) { Apply(widget, QPalette::Window, "BackColor", colour); }
void Set_Box_Color(QWidget* box, unsigned colour) {
  box->setProperty("BackColor", QVariant::fromValue(colour));
  QPalette palette = box->palette();
  // A text box shows its face in the base colour, a list-only combo box in the button colour.
  palette.setColor(QPalette::Base, To_QColor(colour));
  palette.setColor(QPalette::Button, To_QColor(colour));
  box->setPalette(palette);
}

unsigned Fore_Color(const QWidget* widget) { return Read(widget, "ForeColor", kButtonText); }
unsigned Back_Color(const QWidget* widget) { return Read(widget, "BackColor", kButtonFace); }

QComboBox* Make_Combo(QWidget* parent, const QString& name, bool editable) {
  auto* combo = Make<QComboBox>(parent, name);
  combo->setEditable(editable);
  if (editable) {
    combo->setCompleter(nullptr);
    combo->setInsertPolicy(QComboBox::NoInsert);
  }
  return combo;
}

namespace {
constexpr char kCancelRole[] = "cancel";
}  // namespace

void Set_Cancel(QPushButton* button, bool cancel) { button->setProperty(kCancelRole, cancel); }

bool Is_Cancel(const QPushButton* button) { return button->property(kCancelRole).toBool(); }

void Show_In_Front(QWidget& window) {
  window.show();
  window.raise();
  window.activateWindow();
}

QStringList Texts(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(QString::fromStdString(text));
  return list;
}

void Enable_Input(QWidget* input, bool enabled) {
  input->setEnabled(enabled);
  Set_Box_Color(input, enabled ? kWindowBackground : kButtonFace);
}

void Fit_Captions(std::initializer_list<QAbstractButton*> buttons) {
  constexpr double kSmallestPointSize = 6;
  constexpr double kStep = 0.5;
  if (buttons.size() == 0) return;
  QFont font = (*buttons.begin())->font();
  const auto all_fit = [&] {
    return std::all_of(buttons.begin(), buttons.end(), [&](QAbstractButton* button) {
      button->setFont(font);
      return button->sizeHint().width() <= button->width();
    });
  };
  while (!all_fit() && font.pointSizeF() - kStep >= kSmallestPointSize) font.setPointSizeF(font.pointSizeF() - kStep);
}

std::string Lines_Of(const QPlainTextEdit* box) {
  return box->toPlainText().replace(QStringLiteral("\n"), QStringLiteral("\r\n")).toStdString();
}

void On_Got_Focus(QWidget* control, std::function<void()> procedure) {
  new GotFocus(control, std::move(procedure));  // owned by the control
}

}  // namespace orrivane::controls
