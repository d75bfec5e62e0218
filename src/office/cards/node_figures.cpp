#include "office/cards/node_figures.h"

#include "app/common_routines.h"
#include "store/data_module.h"
#include "store/plemena.h"
#include "store/psi.h"

namespace lorvo {

using namespace Qt::StringLiterals;

// kept: ring-share-of-all-breeds
RingFigures FiguresOfRing(int ringID) {
    const ReadRun run(TheDataModule().Conn1);
    RingFigures figures;
    figures.PlemenaCnt = QString::number(CountUsedBreedsOfRing(ringID));
    const int allDogs = CountDogs();
    const int allBreeds = CountBreeds();
    const int dogs = CountDogsOfRing(ringID);
    figures.DogsCnt = QString::number(dogs);
    figures.DogsCntPrc = PercentText(dogs, allDogs);
    figures.PlemenaCntPrc = PercentText(CountBreedsOfRing(ringID), allBreeds);
    return figures;
}

BreedFigures FiguresOfBreed(int breedID) {
    const ReadRun run(TheDataModule().Conn1);
    const int allDogs = CountDogs();
    const int dogs = CountDogsOfBreed(breedID);
    return {QString::number(dogs), PercentText(dogs, allDogs),
            QString::number(ExistingBreed(breedID).FCI)};
}

QString TitleOfBreed(int breedID) {
    const Plemena breed = ExistingBreed(breedID);
    return u"%1 (%2)"_s.arg(breed.Nazev, breed.NazevOrig);
}

QString DogCountOfClass(int breedID, int trida) {
    return QString::number(CountDogsOfClass(breedID, trida));
}

FciFigures FiguresOfFci(int group) {
    const ReadRun run(TheDataModule().Conn1);
    return {QString::number(CountBreedsOfFci(group)), QString::number(CountDogsOfFci(group))};
}

} // namespace lorvo
