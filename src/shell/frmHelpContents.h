#pragma once
// "Orrivane Help": the program's whole help. The user picks a category, the window lists its
// topics, and the text of a chosen topic is shown in a read-only box. Closing only hides the
// window, so that the category and the topic on show are there again at the next opening.
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <string>

namespace orrivane {

class frmHelpContents : public QWidget {
  Q_OBJECT
 public:
  frmHelpContents();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblCategoryCaption;   // "Select A Category"
  QComboBox* cboCategory;       // the five categories, list only, none chosen at first
  QLabel* lblTopicListCaption;  // "Select A Topic"
  QListWidget* lstSelectATopic;  // the topics of the category, in their own order
  QPushButton* cmdSelect;        // "Select": disabled until a topic is clicked
  QPushButton* cmdCancel;        // "Close"
  QLabel* lblTopicName;          // what txtTopic shows: a category or a topic
  QPlainTextEdit* txtTopic;      // the text, read-only, wrapped to the box

  // ---- Events ----------------------------------------------------------------------------
  // Run once, when the window is created: an empty list and the welcome text.
  void Form_Load();
  // A category was chosen: its introduction and its topics.
  void cboCategory_Click();
  void lstSelectATopic_Click();
  void lstSelectATopic_DblClick();
  void cmdSelect_Click();
  // Hides the window; nothing is cleared.
  void cmdCancel_Click();
  // Shows the selected topic of the list: its name and its text.
  void Select_A_Topic();

 private:
  void Build_Controls();
  void Place_Controls();
  void Connect_Controls();
  void Show_Text(const std::string& name, const std::string& text);
};

}  // namespace orrivane
