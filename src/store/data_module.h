#pragma once
// The data module: the one connection and the named record sets.

#include "store/connection.h"
#include "store/record_set.h"

namespace lorvo {

class DataModule {
  public:
    DataModule();

    Connection Conn1;
    RecordSet rsBarvy, rsKruhy, rsPlemena, rsPsi, rsVazby_Trida, rsOstatni, rsMajitele, rsSouteze,
        rsVazby_Souteze, rsMeny, rsUhrady, rsVystavy, rsPsiVeVystavach, rsOceneni, rsPsiOceneni,
        rsrsQuery1, rsrsQuery2;
};

/// The data module of the running program or test.
DataModule& TheDataModule();

} // namespace lorvo
