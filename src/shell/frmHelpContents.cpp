#include "shell/frmHelpContents.h"

#include <string_view>

#include "platform/controls.h"
#include "shell/help_topics.h"

namespace orrivane {

namespace {

using controls::Make;
using controls::Make_Button;
using controls::Make_Label;

QString To_QString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Geometry in pixels: the choices in a column on the left, the text on the right.
constexpr int kMargin = 12;
constexpr int kLeftWidth = 320;
constexpr int kCaptionHeight = 20;
constexpr int kComboHeight = 28;
constexpr int kListTop = 92;
constexpr int kListHeight = 300;
constexpr int kButtonTop = kListTop + kListHeight + 12;
constexpr int kButtonHeight = 32;
constexpr int kButtonGap = 12;
constexpr int kTextLeft = kMargin + kLeftWidth + 16;
constexpr int kTextWidth = 420;
constexpr int kWindowWidth = kTextLeft + kTextWidth + kMargin;
constexpr int kWindowHeight = kButtonTop + kButtonHeight + kMargin;

}  // namespace

frmHelpContents::frmHelpContents() {
  setObjectName("frmHelpContents");
  setWindowTitle("Orrivane Help");
  Build_Controls();
  Place_Controls();
  Connect_Controls();
  Form_Load();
}

void frmHelpContents::Build_Controls() {
  lblCategoryCaption = Make_Label(this, "lblCategoryCaption", "Select A Category");
  cboCategory = Make<QComboBox>(this, "cboCategory");
  for (std::string_view category : shell::Help_Categories()) cboCategory->addItem(To_QString(category));
  cboCategory->setCurrentIndex(-1);

  lblTopicListCaption = Make_Label(this, "lblTopicListCaption", "Select A Topic");
  lstSelectATopic = Make<QListWidget>(this, "lstSelectATopic");
  lstSelectATopic->setSelectionMode(QAbstractItemView::SingleSelection);

  cmdSelect = Make_Button(this, "cmdSelect", "Select");
  cmdSelect->setEnabled(false);
  cmdCancel = Make_Button(this, "cmdCancel", "Close");

  lblTopicName = Make_Label(this, "lblTopicName", "Topic:");
  QFont bold = lblTopicName->font();
  bold.setBold(true);
  lblTopicName->setFont(bold);
  txtTopic = Make<QPlainTextEdit>(this, "txtTopic");
  txtTopic->setReadOnly(true);
  txtTopic->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  txtTopic->setTabChangesFocus(true);
}

void frmHelpContents::Place_Controls() {
  lblCategoryCaption->setGeometry(kMargin, 10, kLeftWidth, kCaptionHeight);
  cboCategory->setGeometry(kMargin, 32, kLeftWidth, kComboHeight);
  lblTopicListCaption->setGeometry(kMargin, 70, kLeftWidth, kCaptionHeight);
  lstSelectATopic->setGeometry(kMargin, kListTop, kLeftWidth, kListHeight);
  const int button_width = (kLeftWidth - kButtonGap) / 2;
  cmdSelect->setGeometry(kMargin, kButtonTop, button_width, kButtonHeight);
  cmdCancel->setGeometry(kMargin + button_width + kButtonGap, kButtonTop, button_width, kButtonHeight);
  lblTopicName->setGeometry(kTextLeft, 10, kTextWidth, kCaptionHeight);
  txtTopic->setGeometry(kTextLeft, 32, kTextWidth, kButtonTop + kButtonHeight - 32);
  setFixedSize(kWindowWidth, kWindowHeight);

  setTabOrder(cboCategory, lstSelectATopic);
  setTabOrder(lstSelectATopic, cmdSelect);
  setTabOrder(cmdSelect, cmdCancel);
  setTabOrder(cmdCancel, txtTopic);
}

void frmHelpContents::Connect_Controls() {
  // A choice in the closed box by the keyboard counts as a click, as one in the open list does.
  connect(cboCategory, &QComboBox::activated, this, [this] { cboCategory_Click(); });
  connect(lstSelectATopic, &QListWidget::itemSelectionChanged, this, [this] {
    if (!lstSelectATopic->selectedItems().isEmpty()) lstSelectATopic_Click();
  });
  connect(lstSelectATopic, &QListWidget::itemDoubleClicked, this, [this] { lstSelectATopic_DblClick(); });
  connect(cmdSelect, &QPushButton::clicked, this, [this] { cmdSelect_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmHelpContents::Form_Load() {
  lstSelectATopic->clear();
  txtTopic->setPlainText(To_QString(shell::kHelpWelcome));
}

void frmHelpContents::cboCategory_Click() {
  lstSelectATopic->clear();
  cmdSelect->setEnabled(false);
  const std::string category = cboCategory->currentText().toStdString();
  Show_Text(category, shell::Display_Category_Intro(category));
  for (std::string_view topic : shell::Category_Topics(category)) lstSelectATopic->addItem(To_QString(topic));
}

void frmHelpContents::lstSelectATopic_Click() { cmdSelect->setEnabled(true); }

void frmHelpContents::lstSelectATopic_DblClick() { Select_A_Topic(); }

void frmHelpContents::cmdSelect_Click() { Select_A_Topic(); }

void frmHelpContents::cmdCancel_Click() { hide(); }

void frmHelpContents::Select_A_Topic() {
  const QList<QListWidgetItem*> selected = lstSelectATopic->selectedItems();
  const std::string topic = selected.isEmpty() ? std::string() : selected.front()->text().toStdString();
  Show_Text(topic, shell::Get_Topic_Contents(topic));
}

void frmHelpContents::Show_Text(const std::string& name, const std::string& text) {
  controls::Set_Caption(lblTopicName, name);
  txtTopic->setPlainText(To_QString(text));
}

}  // namespace orrivane
