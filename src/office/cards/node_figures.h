#pragma once
// The figures beside a selected ring, breed, class or FCI group, as the panels show them. Each call
// reads them afresh.

#include <QString>

namespace lorvo {

struct RingFigures {
    QString PlemenaCnt;    ///< breeds of the ring that are in use
    QString PlemenaCntPrc; ///< all breeds of the ring among all breeds of the register
    QString DogsCnt;
    QString DogsCntPrc; ///< among all dogs
};
/// Ring 0 stands for the breeds in no ring.
RingFigures FiguresOfRing(int ringID);

struct BreedFigures {
    QString DogsCount;
    QString DogsCountPrc; ///< among all dogs
    QString FCI;
};
BreedFigures FiguresOfBreed(int breedID);
/// The breed's name with the original one in brackets.
QString TitleOfBreed(int breedID);

/// Dogs of a breed in one class.
QString DogCountOfClass(int breedID, int trida);

struct FciFigures {
    QString PlemenaInFCICount;
    QString DogsInFCICount;
};
FciFigures FiguresOfFci(int group);

} // namespace lorvo
