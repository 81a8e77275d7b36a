// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "formulanode_p.h"

#include "aravis_p.h"
#include "description_p.h"
#include "engineanswer_p.h"
#include "formula_p.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <optional>
#include <vector>

using Cameras::Formula;

namespace {

struct FormulaState
{
    ArvGcFeatureNode *replaced = nullptr; // stays in the document
    QList<QByteArray> variables; // TO or FROM come last
    QList<QByteArray> variableNodes;
    std::vector<ArvGcNode *> foundNodes; // of these, as soon as they were needed
    QByteArray valueNode; // what a converter converts
    Formula from;
    Formula to;
    bool isConverter = false;
};

} // namespace

// The object system makes its own names of these, hence the other spelling.
struct ZeltoFormulaNode
{
    ArvGcFeatureNode parent;
    FormulaState *state;
};

struct ZeltoFormulaNodeClass
{
    ArvGcFeatureNodeClass parent;
};

using ZeltoIntegerFormula = ZeltoFormulaNode;
using ZeltoIntegerFormulaClass = ZeltoFormulaNodeClass;
using ZeltoFloatFormula = ZeltoFormulaNode;
using ZeltoFloatFormulaClass = ZeltoFormulaNodeClass;

static void initIntegerInterface(ArvGcIntegerInterface *interface);
static void initFloatInterface(ArvGcFloatInterface *interface);

G_DEFINE_TYPE(ZeltoFormulaNode, zelto_formula_node, ARV_TYPE_GC_FEATURE_NODE)
G_DEFINE_TYPE_WITH_CODE(ZeltoIntegerFormula, zelto_integer_formula, zelto_formula_node_get_type(),
                        G_IMPLEMENT_INTERFACE(ARV_TYPE_GC_INTEGER, initIntegerInterface))
G_DEFINE_TYPE_WITH_CODE(ZeltoFloatFormula, zelto_float_formula, zelto_formula_node_get_type(),
                        G_IMPLEMENT_INTERFACE(ARV_TYPE_GC_FLOAT, initFloatInterface))

namespace {

enum class Which { Value, Minimum, Maximum };

FormulaState &stateOf(void *node)
{
    return *static_cast<ZeltoFormulaNode *>(node)->state;
}

ArvGcNode *otherNode(void *node, const QByteArray &name)
{
    return arv_gc_get_node(arv_gc_node_get_genicam(ARV_GC_NODE(node)), name.constData());
}

void fail(void *node, GError **error)
{
    g_set_error(error, ARV_GC_ERROR, ARV_GC_ERROR_OUT_OF_RANGE, "[%s] the formula has no result",
                arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(node)));
}

std::optional<Formula::Number> numberOf(ArvGcNode *node, Which which, GError **error)
{
    GError *failure = nullptr;
    Formula::Number number;
    if (ARV_IS_GC_INTEGER(node)) {
        const auto read = which == Which::Value ? arv_gc_integer_get_value
            : which == Which::Minimum           ? arv_gc_integer_get_min
                                                : arv_gc_integer_get_max;
        number = qint64(read(ARV_GC_INTEGER(node), &failure));
    } else if (ARV_IS_GC_FLOAT(node)) {
        const auto read = which == Which::Value ? arv_gc_float_get_value
            : which == Which::Minimum           ? arv_gc_float_get_min
                                                : arv_gc_float_get_max;
        number = read(ARV_GC_FLOAT(node), &failure);
    } else if (ARV_IS_GC_BOOLEAN(node) && which == Which::Value) {
        number = qint64(arv_gc_boolean_get_value(ARV_GC_BOOLEAN(node), &failure));
    } else {
        g_set_error_literal(&failure, ARV_GC_ERROR, ARV_GC_ERROR_INVALID_PVALUE, "no number");
    }
    if (failure) {
        g_propagate_error(error, failure);
        return std::nullopt;
    }
    return number;
}

// Returns the values of the variables, the last of which is handed over.
std::optional<std::vector<Formula::Number>> valuesFor(void *node, const Formula &formula,
                                                      const Formula::Number &last, GError **error)
{
    FormulaState &state = stateOf(node);
    std::vector<Formula::Number> values(size_t(state.variables.size()), last);
    state.foundNodes.resize(size_t(state.variableNodes.size()), nullptr);
    for (int i = 0; i < state.variableNodes.size(); ++i) {
        if (!formula.uses(i)) {
            continue;
        }
        ArvGcNode *&found = state.foundNodes[size_t(i)];
        found = found ? found : otherNode(node, state.variableNodes[i]);
        const auto number = numberOf(found, Which::Value, error);
        if (!number) {
            return std::nullopt;
        }
        values[size_t(i)] = *number;
    }
    return values;
}

std::optional<qint64> integerValue(void *node, GError **error)
{
    const Formula &formula = stateOf(node).from;
    const auto values = valuesFor(node, formula, qint64(0), error);
    if (!values) {
        return std::nullopt;
    }
    const auto result = formula.integer(*values);
    if (!result) {
        fail(node, error);
    }
    return result;
}

// Converters reckon with floating-point numbers, as the engine's do, integer ones included.
std::optional<double> converted(void *node, const Formula &formula, const Formula::Number &number,
                                GError **error)
{
    const auto values = valuesFor(node, formula, number, error);
    if (!values) {
        return std::nullopt;
    }
    const auto result = formula.number(*values);
    if (!result) {
        fail(node, error);
    }
    return result;
}

std::optional<double> floatValue(void *node, Which which, GError **error)
{
    const FormulaState &state = stateOf(node);
    if (!state.isConverter) {
        return converted(node, state.from, qint64(0), error);
    }
    const auto number = numberOf(otherNode(node, state.valueNode), which, error);
    return number ? converted(node, state.from, *number, error) : std::nullopt;
}

// A formula may turn the limits round.
std::optional<double> limit(void *node, Which which, GError **error)
{
    const auto minimum = floatValue(node, Which::Minimum, error);
    const auto maximum = minimum ? floatValue(node, Which::Maximum, error) : std::nullopt;
    if (!maximum) {
        return std::nullopt;
    }
    return which == Which::Minimum ? std::min(*minimum, *maximum) : std::max(*minimum, *maximum);
}

std::optional<qint64> truncated(void *node, std::optional<double> number, GError **error)
{
    const auto result = number ? Formula::truncated(*number) : std::nullopt;
    if (number && !result) {
        fail(node, error);
    }
    return result;
}

void convertBack(void *node, const Formula::Number &value, GError **error)
{
    const FormulaState &state = stateOf(node);
    const auto number = converted(node, state.to, value, error);
    ArvGcNode *target = otherNode(node, state.valueNode);
    if (ARV_IS_GC_INTEGER(target)) {
        if (const auto integer = truncated(node, number, error)) {
            arv_gc_integer_set_value(ARV_GC_INTEGER(target), *integer, error);
        }
    } else if (ARV_IS_GC_FLOAT(target) && number) {
        arv_gc_float_set_value(ARV_GC_FLOAT(target), *number, error);
    } else if (number) {
        g_set_error_literal(error, ARV_GC_ERROR, ARV_GC_ERROR_INVALID_PVALUE, "no number");
    }
}

ArvGcInteger *replacedInteger(ArvGcInteger *node)
{
    return ARV_GC_INTEGER(stateOf(node).replaced);
}

ArvGcFloat *replacedFloat(ArvGcFloat *node)
{
    return ARV_GC_FLOAT(stateOf(node).replaced);
}

gint64 getInteger(ArvGcInteger *node, GError **error)
{
    const auto value = stateOf(node).isConverter
        ? truncated(node, floatValue(node, Which::Value, error), error)
        : integerValue(node, error);
    return value.value_or(0);
}

void setInteger(ArvGcInteger *node, gint64 value, GError **error)
{
    if (stateOf(node).isConverter) {
        convertBack(node, qint64(value), error);
    } else {
        arv_gc_integer_set_value(replacedInteger(node), value, error);
    }
}

gint64 getIntegerMinimum(ArvGcInteger *node, GError **error)
{
    return stateOf(node).isConverter
        ? truncated(node, limit(node, Which::Minimum, error), error).value_or(G_MININT64)
        : arv_gc_integer_get_min(replacedInteger(node), error);
}

gint64 getIntegerMaximum(ArvGcInteger *node, GError **error)
{
    return stateOf(node).isConverter
        ? truncated(node, limit(node, Which::Maximum, error), error).value_or(G_MAXINT64)
        : arv_gc_integer_get_max(replacedInteger(node), error);
}

gint64 getIntegerIncrement(ArvGcInteger *node, GError **error)
{
    return stateOf(node).isConverter ? 1 : arv_gc_integer_get_inc(replacedInteger(node), error);
}

double getFloat(ArvGcFloat *node, GError **error)
{
    return floatValue(node, Which::Value, error).value_or(0.0);
}

void setFloat(ArvGcFloat *node, double value, GError **error)
{
    if (stateOf(node).isConverter) {
        convertBack(node, value, error);
    } else {
        arv_gc_float_set_value(replacedFloat(node), value, error);
    }
}

double getFloatMinimum(ArvGcFloat *node, GError **error)
{
    return stateOf(node).isConverter ? limit(node, Which::Minimum, error).value_or(-DBL_MAX)
                                     : arv_gc_float_get_min(replacedFloat(node), error);
}

double getFloatMaximum(ArvGcFloat *node, GError **error)
{
    return stateOf(node).isConverter ? limit(node, Which::Maximum, error).value_or(DBL_MAX)
                                     : arv_gc_float_get_max(replacedFloat(node), error);
}

double getFloatIncrement(ArvGcFloat *node, GError **error)
{
    return stateOf(node).isConverter ? DBL_MIN : arv_gc_float_get_inc(replacedFloat(node), error);
}

const char *nodeName(ArvDomNode *)
{
    return "ZeltoFormula";
}

ArvGcFeatureNode *linkedFeature(ArvGcFeatureNode *node)
{
    ArvGcFeatureNode *replaced = stateOf(node).replaced;
    return ARV_GC_FEATURE_NODE_GET_CLASS(replaced)->get_linked_feature(replaced);
}

ArvGcAccessMode accessMode(ArvGcFeatureNode *node)
{
    ArvGcFeatureNode *replaced = stateOf(node).replaced;
    return ARV_GC_FEATURE_NODE_GET_CLASS(replaced)->get_access_mode(replaced);
}

void finalize(GObject *object)
{
    delete &stateOf(object);
    G_OBJECT_CLASS(zelto_formula_node_parent_class)->finalize(object);
}

} // namespace

static void zelto_formula_node_init(ZeltoFormulaNode *node)
{
    node->state = new FormulaState;
}

static void zelto_formula_node_class_init(ZeltoFormulaNodeClass *nodeClass)
{
    G_OBJECT_CLASS(nodeClass)->finalize = finalize;
    ARV_DOM_NODE_CLASS(nodeClass)->get_node_name = nodeName;
    nodeClass->parent.get_linked_feature = linkedFeature;
    nodeClass->parent.get_access_mode = accessMode;
}

static void zelto_integer_formula_init(ZeltoIntegerFormula *) { }

static void zelto_integer_formula_class_init(ZeltoIntegerFormulaClass *) { }

static void zelto_float_formula_init(ZeltoFloatFormula *) { }

static void zelto_float_formula_class_init(ZeltoFloatFormulaClass *) { }

static void initIntegerInterface(ArvGcIntegerInterface *interface)
{
    interface->get_value = getInteger;
    interface->set_value = setInteger;
    interface->get_min = getIntegerMinimum;
    interface->get_max = getIntegerMaximum;
    interface->get_inc = getIntegerIncrement;
}

static void initFloatInterface(ArvGcFloatInterface *interface)
{
    interface->get_value = getFloat;
    interface->set_value = setFloat;
    interface->get_min = getFloatMinimum;
    interface->get_max = getFloatMaximum;
    interface->get_inc = getFloatIncrement;
}

namespace Cameras {

namespace {

QByteArray textOf(ArvDomNode *property)
{
    QByteArray text;
    for (ArvDomNode *child = arv_dom_node_get_first_child(property); child;
         child = arv_dom_node_get_next_sibling(child)) {
        text += arv_dom_node_get_node_value(child);
    }
    return text.trimmed();
}

/*! \brief What the description says of a node with formulas. */
struct Contents
{
    Formula::Parts parts;
    QList<QByteArray> variables;
    QList<QByteArray> variableNodes;
    QByteArray value;
    QByteArray formula;
    QByteArray formulaTo;
};

Contents contentsOf(ArvGcNode *node)
{
    Contents contents;
    for (ArvDomNode *child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child)) {
        if (!ARV_IS_GC_PROPERTY_NODE(child)) {
            continue;
        }
        auto *property = ARV_GC_PROPERTY_NODE(child);
        switch (arv_gc_property_node_get_node_type(property)) {
        case ARV_GC_PROPERTY_NODE_TYPE_FORMULA:
        case ARV_GC_PROPERTY_NODE_TYPE_FORMULA_FROM:
            contents.formula = textOf(child);
            break;
        case ARV_GC_PROPERTY_NODE_TYPE_FORMULA_TO:
            contents.formulaTo = textOf(child);
            break;
        case ARV_GC_PROPERTY_NODE_TYPE_P_VALUE:
            contents.value = textOf(child);
            break;
        case ARV_GC_PROPERTY_NODE_TYPE_EXPRESSION:
        case ARV_GC_PROPERTY_NODE_TYPE_CONSTANT:
            contents.parts.insert(arv_gc_property_node_get_name(property), textOf(child));
            break;
        case ARV_GC_PROPERTY_NODE_TYPE_P_VARIABLE:
            contents.variables.append(arv_gc_property_node_get_name(property));
            contents.variableNodes.append(textOf(child));
            break;
        default:
            break;
        }
    }
    return contents;
}

// What the engine looks at in the node itself: whether it is there, and who is to see it.
void copyConditions(ArvGcNode *from, ArvGcNode *to)
{
    ArvDomDocument *document = arv_dom_node_get_owner_document(ARV_DOM_NODE(from));
    for (ArvDomNode *child = arv_dom_node_get_first_child(ARV_DOM_NODE(from)); child;
         child = arv_dom_node_get_next_sibling(child)) {
        const QByteArray tag = arv_dom_node_get_node_name(child);
        if (!tag.startsWith("pIs") && tag != "Visibility" && tag != "ImposedAccessMode") {
            continue;
        }
        auto *copy = ARV_DOM_NODE(arv_dom_document_create_element(document, tag.constData()));
        arv_dom_node_append_child(ARV_DOM_NODE(to), copy);
        arv_dom_node_append_child(
            copy, ARV_DOM_NODE(arv_dom_document_create_text_node(document, textOf(child).constData())));
    }
}

void guardFormulas(ArvGcNode *node)
{
    const bool isConverter = ARV_IS_GC_CONVERTER(node);
    ArvDomNode *parent = node ? arv_dom_node_get_parent_node(ARV_DOM_NODE(node)) : nullptr;
    if ((!isConverter && !ARV_IS_GC_SWISS_KNIFE(node)) || !parent) {
        return;
    }
    auto *guarded = static_cast<ArvGcNode *>(g_object_new(
        ARV_IS_GC_INTEGER(node) ? zelto_integer_formula_get_type() : zelto_float_formula_get_type(),
        nullptr));
    FormulaState &state = stateOf(guarded);
    const Contents contents = contentsOf(node);
    state.replaced = ARV_GC_FEATURE_NODE(node);
    state.isConverter = isConverter;
    state.variables = contents.variables;
    state.variableNodes = contents.variableNodes;
    state.valueNode = contents.value;
    const auto formula = [&contents](const QByteArray &text, const char *last) {
        return Formula(text, contents.parts, contents.variables + QList<QByteArray>{last});
    };
    state.from = formula(contents.formula, isConverter ? "TO" : "");
    state.to = formula(contents.formulaTo, "FROM");
    state.variables.append(QByteArray());

    arv_dom_node_append_child(parent, ARV_DOM_NODE(guarded));
    copyConditions(node, guarded);
    arv_dom_element_set_attribute(ARV_DOM_ELEMENT(guarded), "Name",
                                  arv_gc_feature_node_get_name(state.replaced));
    arv_gc_register_feature_node(arv_gc_node_get_genicam(guarded), ARV_GC_FEATURE_NODE(guarded));
}

} // namespace

void guardFormulas(ArvGc *genicam, const Description &description)
{
    for (const int node : description.formulas()) {
        guardFormulas(arv_gc_get_node(genicam, description.name(node).toUtf8().constData()));
    }
}

std::optional<double> converterStep(ArvGcNode *node)
{
    if (!node || !G_TYPE_CHECK_INSTANCE_TYPE(node, zelto_formula_node_get_type())
        || !stateOf(node).isConverter) {
        return std::nullopt;
    }
    const FormulaState &state = stateOf(node);
    ArvGcNode *target = otherNode(node, state.valueNode);
    const auto number =
        ARV_IS_GC_INTEGER(target) ? asked(arv_gc_integer_get_value, ARV_GC_INTEGER(target)) : std::nullopt;
    const auto here = number ? converted(node, state.from, *number, Unanswered()) : std::nullopt;
    double step = 0.0;
    for (const quint64 offset : {quint64(1), ~quint64(0)}) {
        const auto other = here ? converted(node, state.from, qint64(quint64(*number) + offset), Unanswered())
                                : std::nullopt;
        step = other && std::isfinite(*other) ? std::max(step, std::abs(*other - *here)) : step;
    }
    return step;
}

QHash<QByteArray, QList<qint64>> formulaHints(ArvGcNode *node)
{
    QHash<QByteArray, QList<qint64>> hints;
    if (!node || !G_TYPE_CHECK_INSTANCE_TYPE(node, zelto_formula_node_get_type())) {
        return hints;
    }
    const FormulaState &state = stateOf(node);
    for (int i = 0; i < state.variableNodes.size(); ++i) {
        hints[state.variableNodes[i]] += state.from.neighbours(i);
    }
    return hints;
}

} // namespace Cameras
