// SPDX-License-Identifier: MIT

#include "lyrics/LyricsStore.h"
#include "support/Sequences.h"
#include "support/TestMachine.h"

#include <array>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

// Compares the store with a model, on random sequences of loads, clears and answers.
namespace brellowind {
namespace {

using Case = LyricsState::Case;

struct Step {
    enum Kind { load, clear, turn, answer } kind;
    int which = 0;  ///< the track, or the request, counted from the last one
    int manner = 0; ///< the track's other fields, or the kind of answer
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
    const char* const kinds[] = {"load", "clear", "turn", "answer"};
    return out << kinds[step.kind] << ' ' << step.which << " in manner " << step.manner;
}

Step anyStep(test::Chance& chance) {
    const auto kind = chance.oneOf<Step::Kind>(
        {Step::load, Step::load, Step::clear, Step::turn, Step::turn, Step::answer, Step::answer});
    return {kind, chance.below(3), chance.below(6)};
}

/// All manners of a track have the same id.
Track track(const Step& step) {
    return {std::string(1, static_cast<char>('A' + step.which)), "Artist", "Album",
            1000.0 * step.manner, std::nullopt};
}

/// The state of the store: a case, and the text that identifies the answer.
struct Shown {
    Case which = Case::idle;
    std::string words;

    bool operator==(const Shown&) const = default;
};

/// The answer to the `request`-th request, and the expected state.
std::pair<platform::HttpResult, Shown> answer(const Step& step, std::size_t request) {
    using platform::HttpResponse;
    const std::string words = "words " + std::to_string(request);
    switch (step.manner) {
    case 0:
        return {HttpResponse{200, R"({"syncedLyrics":"[00:01.00])" + words + R"("})"},
                {Case::loaded, words}};
    case 1:
        return {HttpResponse{200, R"({"plainLyrics":")" + words + R"("})"}, {Case::plain, words}};
    case 2:
        return {HttpResponse{404, words}, {Case::notFound, ""}};
    case 3:
        return {HttpResponse{500, "<p>" + words}, {Case::failed, ""}};
    case 4:
        return {HttpResponse{200, "{}"}, {Case::notFound, ""}};
    default:
        return {platform::TransportError{"no route"}, {Case::failed, ""}};
    }
}

/// The model, in terms of numbered loads.
struct Model {
    Shown shown;
    int assignments = 0;
    std::optional<int> trackHeld;
    int lastLoad = 0;
    std::optional<int> current;     ///< the load that may be answered
    bool asked = true;              ///< whether that load has sent its request
    std::vector<int> loadOf;        ///< for each request
    std::vector<bool> isAnswered{}; ///< for each request

    void load(int track) {
        if (trackHeld == track)
            return;
        trackHeld = track;
        show({Case::loading, ""});
        current = ++lastLoad;
        asked = false;
    }

    void clear() {
        trackHeld.reset();
        current.reset();
        asked = true;
        show({Case::idle, ""});
    }

    void turn() {
        if (asked)
            return;
        asked = true;
        loadOf.push_back(*current);
        isAnswered.push_back(false);
    }

    void answer(std::size_t request, const Shown& meaning) {
        if (isAnswered[request] || current != loadOf[request])
            return;
        isAnswered[request] = true;
        show(meaning);
    }

    bool isAborted(std::size_t request) const {
        return !isAnswered[request] && current != loadOf[request];
    }

    void show(Shown next) {
        ++assignments;
        shown = std::move(next);
    }
};

/// The store on a fake machine, and the model.
class Comparison {
public:
    test::Disagreement take(const Step& step) {
        switch (step.kind) {
        case Step::load:
            store_->load(track(step));
            model_.load(step.which);
            break;
        case Step::clear:
            store_->clear();
            model_.clear();
            break;
        case Step::turn:
            machine_.mainLoop.runTurns();
            model_.turn();
            break;
        case Step::answer:
            answerRequest(step);
            break;
        }
        return difference();
    }

    /// Destroys the store, also while loading: pending work ends and nothing leaks.
    test::Disagreement release() {
        store_.reset();
        machine_.mainLoop.runTurns();
        for (std::size_t i = 0; i < machine_.http.requests.size(); ++i)
            machine_.http.answer(i, platform::HttpResponse{404, ""});
        machine_.mainLoop.runTurns();
        if (machine_.tasks.running() != 0)
            return "tasks left over: " + std::to_string(machine_.tasks.running());
        if (machine_.mainLoop.timerCount() != 0)
            return "timers left over: " + std::to_string(machine_.mainLoop.timerCount());
        return std::nullopt;
    }

private:
    void answerRequest(const Step& step) {
        const std::size_t requests = machine_.http.requests.size();
        const auto back = static_cast<std::size_t>(step.which);
        if (back >= requests || requests != model_.loadOf.size())
            return;
        const std::size_t request = requests - 1 - back;
        auto [result, meaning] = answer(step, request);
        machine_.http.answer(request, std::move(result));
        model_.answer(request, meaning);
    }

    Shown shown() const {
        const auto& state = *store_->state;
        if (state.which() == Case::loaded)
            return {Case::loaded, std::string(store_->lines().at(0).text)};
        return {state.which(), state.text()};
    }

    test::Disagreement difference() const {
        if (shown() != model_.shown)
            return "shown: " + std::to_string(static_cast<int>(shown().which)) + " \"" +
                   shown().words + "\" instead of " +
                   std::to_string(static_cast<int>(model_.shown.which)) + " \"" +
                   model_.shown.words + '"';
        if (assignments_ != model_.assignments)
            return "assignments: " + std::to_string(assignments_) + " instead of " +
                   std::to_string(model_.assignments);
        const bool isLoaded = model_.shown.which == Case::loaded;
        if (store_->lines().empty() == isLoaded || store_->activeIndex(1).has_value() != isLoaded)
            return "lines that do not go with the state";
        const auto& requests = machine_.http.requests;
        if (requests.size() != model_.loadOf.size())
            return "requests: " + std::to_string(requests.size()) + " instead of " +
                   std::to_string(model_.loadOf.size());
        for (std::size_t i = 0; i < requests.size(); ++i)
            if (requests[i]->aborted != model_.isAborted(i))
                return "request " + std::to_string(i) +
                       (requests[i]->aborted ? " aborted" : " not aborted");
        return std::nullopt;
    }

    test::TestMachine machine_;
    std::shared_ptr<LyricsStore> store_ =
        std::make_shared<LyricsStore>(machine_.tasks, machine_.http, machine_.constants);
    Model model_;
    int assignments_ = 0;
    Subscription counting_ = store_->state.observe([this] { ++assignments_; });
};

test::Disagreement compare(const test::Steps<Step>& steps) {
    Comparison comparison;
    for (const auto& step : steps)
        if (auto disagreement = comparison.take(step))
            return disagreement;
    return comparison.release();
}

TEST(LyricsStoreModel, NeverShowsAStaleAnswerWhateverIsLoadedClearedAndAnswered) {
    test::expectAgreement<Step>({.step = anyStep, .run = compare});
}

} // namespace
} // namespace brellowind
