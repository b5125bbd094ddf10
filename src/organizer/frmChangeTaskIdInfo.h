#pragma once
// "Change Task\Event Identity Information": the name, the description, the group member and the
// colour of the task shown in the task information window, each beside its present value. OK
// hands the new ones back to the task information window. A new member named here gets no
// marker record: the member exists through the task alone.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

namespace orrivane {

class frmChangeTaskIdInfo : public QWidget {
  Q_OBJECT
 public:
  frmChangeTaskIdInfo();

  // ---- Controls: name and description ----------------------------------------------------
  QLabel* lblOldRecordNameLabel;
  QLabel* lblOldRecordName;
  QLabel* lblNewRecordNameLabel;
  QLineEdit* txtNewRecordName;
  QLabel* lblOldRecordDescriptionLabel;
  QLabel* lblOldRecordDescription;
  QLabel* lblNewRecordDescriptionLabel;
  QLineEdit* txtNewRecordDescription;

  // ---- Controls: the group member ----------------------------------------------------------
  QLabel* lblCurrentGroupMemberLabel;
  QLabel* lblCurrentGroupMember;
  QLabel* lblNewGroupMemberLabel;
  QLabel* lblNewGroupMember;
  QGroupBox* fraPerson;
  QRadioButton* optExistingPerson;
  QComboBox* cboExistingPerson;  // the log's members, added to as it takes the focus
  QRadioButton* optEnterNameOfNewPerson;
  QLineEdit* txtNewPerson;
  QPushButton* cmdAssignToGroupMember;

  // ---- Controls: the colour ----------------------------------------------------------------
  QLabel* lblCurrentColorCodeLabel;
  QLabel* lblCurrentColorCode;
  QLabel* lblNewColorCodeLabel;
  QLabel* lblNewColorCode;  // its background is the new colour
  QPushButton* CmdChangeColorCode;

  QPushButton* cmdOK;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  void optExistingPerson_Click();
  void optEnterNameOfNewPerson_Click();
  // Every member of the log that the box doesn't hold yet, in the order of the log.
  void cboExistingPerson_GotFocus();
  void cboExistingPerson_Click();
  void cmdAssignToGroupMember_Click();
  // The palette, shown modally; it learns whom it serves only once it has closed.
  void CmdChangeColorCode_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

 private:
  void Build_Controls();
  void Place_Controls();
  void Connect_Controls();
  // The chosen input of the member enabled in the window background colour, the other disabled
  // in the button-face colour.
  void Enable_Person_Input(bool existing);
};

}  // namespace orrivane
