// A model of the library as a C++ value: its dimensions, its parameters' names, its page.
#pragma once

#include <ansatz/ansatz.h>
#include <ansatz/batch.h>
#include <ansatz/host/error.hpp>
#include <ansatz/page.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ansatz::host {

/// Every name of the catalogue, in its order.
const std::vector<std::string>& model_names();

/// Up to `most` names similar to this one, the most similar first.
std::vector<std::string> nearest_names(std::string_view name, std::size_t most = 3);

/// One parameter slot. P1 has index 0 here and in every vector of parameter values.
struct Slot {
    std::string number;  ///< "P3"
    std::string symbol;  ///< "w", or "w1", "w2" with several peaks; the number where there is no page
    std::string meaning; ///< may be empty
    Trait trait = Trait::constant;
    /// Expected-value models are written in terms of the response expected at some x, which the user chooses: a
    /// fit holds that x fixed unless told otherwise.
    bool reference() const { return trait == Trait::reference; }
};

class Model {
public:
    /// Finds a model in any mix of upper and lower case. Throws UnknownModel.
    static Model find(std::string_view name);
    static std::optional<Model> lookup(std::string_view name);

    /// A routine of the caller's own that keeps to the protocol of ansatz.h. The page may be null and must
    /// outlive the model.
    static Model custom(std::string name, FitFunction routine, int independent, int dependent, int parameters,
                        const Page* page = nullptr);

    const std::string& name() const { return name_; } ///< as in the catalogue
    FitFunction function() const { return function_; }
    const AnsatzBatchModel* batch() const { return batch_; } ///< for whole columns; null for a custom routine
    int inputs() const { return inputs_; }                   ///< number of independent variables
    int outputs() const { return outputs_; }                 ///< number of dependent variables, 1 or 2
    bool analytic() const { return analytic_; }              ///< does it offer true derivatives of y[1]?
    const Page* page() const { return page_; }               ///< null for a custom routine without one

    bool replicated() const; ///< does the number of parameters decide the number of peaks or terms?
    bool implicit() const;
    bool reserved() const;

    /// The number of parameter slots: of a replicated model by default, of any other always. It exceeds the
    /// catalogue's number for the expected-value models, whose reference positions are slots as well.
    int default_size() const { return default_size_; }

    /// Throws Error, naming the parameters, unless the model can be called with n parameters. A model without
    /// a page takes any n from its default on: its row does not tell whether it has peaks.
    void require_size(int n) const;

    int blocks(int n) const;     ///< number of peaks or terms among n parameters; 0 for a model of fixed size
    int slots_used(int n) const; ///< the last slot that a call with n parameters reads or writes
    int components(int n) const; ///< number of contributions after y[1]
    std::vector<Slot> slots(int n) const;

    /// The index of the slot addressed as "P3", or by its symbol. Throws Error.
    static int slot_index(const std::vector<Slot>& slots, std::string_view name);

private:
    Model(std::string name, FitFunction routine, int independent, int dependent, int parameters,
          const Page* page);

    std::string name_;
    FitFunction function_ = nullptr;
    const AnsatzBatchModel* batch_ = nullptr;
    int inputs_ = 0, outputs_ = 0, default_size_ = 0;
    bool analytic_ = false;
    const Page* page_ = nullptr;
};

} // namespace ansatz::host
