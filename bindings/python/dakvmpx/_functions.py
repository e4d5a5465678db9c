# Printed by `genbindings python`; do not edit.
# name: (family of the C functions, form, formula, domain)
FAMILIES = {
    "div": (
        "Div",
        "two_inputs",
        "a / b",
        "all numbers; b = 0 is a singularity",
    ),
    "inv": (
        "Inv",
        "one_input",
        "1 / x",
        "all numbers; 0 is a singularity",
    ),
    "sqrt": (
        "Sqrt",
        "one_input",
        "sqrt(x)",
        "x >= 0",
    ),
    "inv_sqrt": (
        "InvSqrt",
        "one_input",
        "1 / sqrt(x)",
        "x >= 0; 0 is a singularity",
    ),
    "exp": (
        "Exp",
        "one_input",
        "e^x",
        "all numbers; large results overflow, small ones underflow",
    ),
    "ln": (
        "Ln",
        "one_input",
        "ln(x)",
        "x > 0; 0 is a singularity",
    ),
    "log10": (
        "Log10",
        "one_input",
        "log10(x)",
        "x > 0; 0 is a singularity",
    ),
    "pow": (
        "Pow",
        "two_inputs",
        "x^y",
        "x > 0; x < 0 with integer y; x = 0 with y > 0",
    ),
    "powx": (
        "Powx",
        "scalar_exponent",
        "x^y, one y for all",
        "as Pow",
    ),
}
