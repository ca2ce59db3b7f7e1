// The titles of a standard address book: see address_titles.h.
#include "mainwindow/address_titles.h"

namespace Global {

AddressTitles StandardTitles;
AddressTitles FieldTitles;
AddressTitles ShownTitles;

void FillAddressTitles() {
  StandardTitles = {"Name",
                    "Home Phone",
                    "Business Phone",
                    "Mobile Phone",
                    "1st E-Mail address",
                    "2nd E-Mail address",
                    "Street line 1",
                    "Street line 2",
                    "City",
                    "Province/State",
                    "Nation",
                    "Postal Code",
                    "Note",
                    "Picture Filename",
                    "Birth Year",
                    "Birth Month",
                    "Birth Day",
                    "Gender"};
  FieldTitles = StandardTitles;
  ShownTitles = StandardTitles;
}

}  // namespace Global
