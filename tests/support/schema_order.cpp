#include "support/schema_order.h"

#include "support/document_parts.h"

#include <gtest/gtest.h>
#include <map>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// Children in the order of the schema; those with a plus may stand there more than once. An
/// element that isn't listed has none.
const std::map<QString, QString> kChildren = {
    {u"Types"_s, u"Default+ Override+"_s},
    {u"Relationships"_s, u"Relationship+"_s},
    {u"cp:coreProperties"_s, u"dc:title dc:creator dc:language"_s},
    {u"w:document"_s, u"background body"_s},
    {u"w:body"_s, u"p+ sectPr"_s},
    {u"w:p"_s, u"pPr r+"_s},
    {u"w:tabs"_s, u"tab+"_s},
    {u"w:cols"_s, u"col+"_s},
    {u"w:pPr"_s,
     u"pStyle keepNext keepLines pageBreakBefore framePr widowControl numPr "
     "suppressLineNumbers pBdr shd tabs suppressAutoHyphens kinsoku wordWrap overflowPunct "
     "topLinePunct autoSpaceDE autoSpaceDN bidi adjustRightInd snapToGrid spacing ind "
     "contextualSpacing mirrorIndents suppressOverlap jc textDirection textAlignment "
     "textboxTightWrap outlineLvl divId cnfStyle rPr sectPr pPrChange"_s},
    {u"w:rPr"_s, u"rStyle rFonts b bCs i iCs caps smallCaps strike dstrike outline shadow emboss "
                 "imprint noProof snapToGrid vanish webHidden color spacing w kern position sz "
                 "szCs highlight u effect bdr shd fitText vertAlign rtl cs em lang "
                 "eastAsianLayout specVanish oMath"_s},
    {u"w:sectPr"_s, u"headerReference+ footerReference+ footnotePr endnotePr type pgSz pgMar "
                    "paperSrc pgBorders lnNumType pgNumType cols formProt vAlign noEndnote titlePg "
                    "textDirection bidi rtlGutter docGrid printerSettings"_s},
    {u"w:styles"_s, u"docDefaults latentStyles style+"_s},
    {u"w:docDefaults"_s, u"rPrDefault pPrDefault"_s},
    {u"w:rPrDefault"_s, u"rPr"_s},
    {u"w:style"_s, u"name aliases basedOn next link autoRedefine hidden uiPriority semiHidden "
                   "unhideWhenUsed qFormat locked personal personalCompose personalReply rsid pPr "
                   "rPr tblPr trPr tcPr tblStylePr+"_s},
    {u"w:settings"_s, u"writeProtection view zoom removePersonalInformation removeDateAndTime "
                      "mirrorMargins proofState defaultTabStop autoHyphenation evenAndOddHeaders "
                      "characterSpacingControl footnotePr endnotePr compat docVars rsids mathPr "
                      "themeFontLang clrSchemeMapping decimalSymbol listSeparator"_s},
    {u"w:compat"_s, u"compatSetting+"_s},
    {u"w:fonts"_s, u"font+"_s},
    {u"w:font"_s, u"altName panose1 charset family notTrueType pitch sig embedRegular embedBold "
                  "embedItalic embedBoldItalic"_s},
};

/// Text, tabs and breaks of a run come in any order behind its properties.
bool IsRunContent(const QDomElement& run) {
    const QStringList content{u"w:t"_s, u"w:tab"_s, u"w:br"_s};
    bool first = true;
    for (auto child = run.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (!content.contains(child.tagName()) && !(first && child.tagName() == u"w:rPr"))
            return false;
        first = false;
    }
    return !first;
}

void ExpectOrder(const QDomElement& parent, const QString& order) {
    const bool prefixed = parent.tagName().startsWith(u"w:");
    const QStringList names = order.split(u' ');
    qsizetype last = -1;
    for (auto child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString name = prefixed ? child.tagName().mid(2) : child.tagName();
        const bool again = last >= 0 && names[last] == name + u'+';
        const qsizetype place = std::max(names.indexOf(name), names.indexOf(name + u'+'));
        EXPECT_TRUE(place > last || again)
            << child.tagName().toStdString() << " in " << parent.tagName().toStdString();
        last = place;
    }
    EXPECT_TRUE(last >= 0 || parent.tagName() == u"w:p")
        << "empty " << parent.tagName().toStdString();
}

void ExpectTree(const QDomElement& element) {
    if (element.tagName() == u"w:r")
        EXPECT_TRUE(IsRunContent(element)) << "a run without text, or with foreign content";
    else if (const auto found = kChildren.find(element.tagName()); found != kChildren.end())
        ExpectOrder(element, found->second);
    else
        EXPECT_TRUE(element.firstChildElement().isNull()) << element.tagName().toStdString();
    for (auto child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        ExpectTree(child);
}

} // namespace

void ExpectSchemaOrder(const QString& documentPath) {
    const QStringList parts = EntriesOf(documentPath);
    EXPECT_EQ(parts.size(), 8) << parts.join(u' ').toStdString();
    for (const QString& part : parts)
        ExpectTree(PartOf(documentPath, part));
}

} // namespace lorvo::test
