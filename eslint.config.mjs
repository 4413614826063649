// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
import js from "@eslint/js";

export default [
    { ignores: ["build/", "node_modules/"] },
    js.configs.recommended,
    {
        files: ["Resources/*.js", "tests/*.js"],
        languageOptions: { sourceType: "script", ecmaVersion: 2022 },
        rules: {
            // The page's scripts share their names, which the type checker knows.
            "no-undef": "off",
            "no-unused-vars": ["error", { vars: "local" }],
            "eqeqeq": "error",
            "no-var": "error",
            "prefer-const": "error",
            "max-lines-per-function": ["error", 80],
            "strict": ["error", "global"],
        },
    },
];
