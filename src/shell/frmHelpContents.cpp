#include "shell/frmHelpContents.h"

#include <iterator>
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

// Where the controls stand, in pixels: the choices in a column on the left, from 12 to 332, the
// text in one on the right, from 348 to 768, both down to the foot of the buttons at 436; the
// two buttons share the width of the choices, 12 apart.
struct Place {
  const char* control;  // its name
  int left, top, width, height;
};
constexpr Place kPlaces[] = {
    {"lblCategoryCaption", 12, 10, 320, 20},
    {"cboCategory", 12, 32, 320, 28},
    {"lblTopicListCaption", 12, 70, 320, 20},
    {"lstSelectATopic", 12, 92, 320, 300},
    {"cmdSelect", 12, 404, 154, 32},
    {"cmdCancel", 178, 404, 154, 32},
    {"lblTopicName", 348, 10, 420, 20},
    {"txtTopic", 348, 32, 420, 404},
};
constexpr QSize kWindowSize(780, 448);  // a margin of 12 beyond the text and the buttons

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
  for (const Place& place : kPlaces) {
    findChild<QWidget*>(place.control)->setGeometry(place.left, place.top, place.width, place.height);
  }
  setFixedSize(kWindowSize);

  // The Tab key goes down the choices, then to the text.
  QWidget* const tab_order[] = {cboCategory, lstSelectATopic, cmdSelect, cmdCancel, txtTopic};
  for (std::size_t i = 1; i < std::size(tab_order); ++i) setTabOrder(tab_order[i - 1], tab_order[i]);
}

void frmHelpContents::Connect_Controls() {
  // A choice in the closed box by the keyboard counts as a click, as one in the open list does.
  connect(cboCategory, &QComboBox::activated, this, &frmHelpContents::cboCategory_Click);
  connect(lstSelectATopic, &QListWidget::itemSelectionChanged, this, [this] {
    if (!lstSelectATopic->selectedItems().isEmpty()) lstSelectATopic_Click();
  });
  connect(lstSelectATopic, &QListWidget::itemDoubleClicked, this, &frmHelpContents::lstSelectATopic_DblClick);
  connect(cmdSelect, &QPushButton::clicked, this, &frmHelpContents::cmdSelect_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmHelpContents::cmdCancel_Click);
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
