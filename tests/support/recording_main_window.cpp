#include "support/recording_main_window.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo::test {

using namespace Qt::StringLiterals;

RecordingMainWindow::RecordingMainWindow() {
    SetTheMainWindow(this);
}

RecordingMainWindow::~RecordingMainWindow() {
    SetTheMainWindow(nullptr);
}

void RecordingMainWindow::AddNode(const QString& key, const QString& text, const QString& parent) {
    nodes_.push_back({key, text, parent});
}

const RecordingMainWindow::Node& RecordingMainWindow::Find(const QString& key) const {
    const auto found = std::find_if(nodes_.begin(), nodes_.end(),
                                    [&](const Node& node) { return node.key == key; });
    if (found == nodes_.end())
        throw Error("no node " + key.toStdString());
    return *found;
}

RecordingMainWindow::Node& RecordingMainWindow::Find(const QString& key) {
    return const_cast<Node&>(std::as_const(*this).Find(key));
}

bool RecordingMainWindow::NodeExists(const QString& key) const {
    return std::any_of(nodes_.begin(), nodes_.end(),
                       [&](const Node& node) { return node.key == key; });
}

QString RecordingMainWindow::NodeText(const QString& key) const {
    return Find(key).text;
}

void RecordingMainWindow::SelectNode(const QString& key) {
    selected = Find(key).key;
    calls << u"SelectNode %1"_s.arg(key);
}

void RecordingMainWindow::MakeNodeVisible(const QString& key) {
    calls << u"MakeNodeVisible %1"_s.arg(Find(key).key);
}

void RecordingMainWindow::AddDogNode(const QString& parentKey, int psiID, const QString& text,
                                     bool male) {
    const QString key = u"P%1"_s.arg(psiID);
    AddNode(key, text, Find(parentKey).key);
    calls << u"AddDogNode %1 %2 %3 %4"_s.arg(parentKey, key, text, male ? u"male"_s : u"female"_s);
}

void RecordingMainWindow::SetNodeText(const QString& key, const QString& text) {
    Find(key).text = text;
    calls << u"SetNodeText %1 %2"_s.arg(key, text);
}

void RecordingMainWindow::LoadData() {
    calls << u"LoadData"_s;
}

void RecordingMainWindow::ShowNodeInfo(const QString& key) {
    calls << u"ShowNodeInfo %1"_s.arg(key);
}

void RecordingMainWindow::SetItemTitle(const QString& text) {
    title = text;
    calls << u"SetItemTitle %1"_s.arg(text);
}

} // namespace lorvo::test
